#include "app/linux/ProgramLinks.h"

namespace brindlex {

AboutLinks programLinks()
{
    return {
        .website = BRINDLEX_WEBSITE,
        .support = BRINDLEX_SUPPORT,
        .privacyPolicy = BRINDLEX_PRIVACY_POLICY,
        .termsOfService = BRINDLEX_TERMS_OF_SERVICE,
    };
}

} // namespace brindlex
