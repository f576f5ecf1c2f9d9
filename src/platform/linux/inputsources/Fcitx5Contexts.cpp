#include "platform/linux/inputsources/Fcitx5Contexts.h"

#include <QStringTokenizer>

namespace brindlex {

QString fcitx5FocusedContext(const QString& debugInfo)
{
    for (const auto line : QStringTokenizer(debugInfo, u'\n')) {
        const auto context = line.trimmed();
        const auto end = context.indexOf(u']');
        if (context.startsWith(u"IC [") && end > 0 && context.endsWith(u" focus:1"))
            return context.mid(4, end - 4).toString();
    }
    return {};
}

} // namespace brindlex
