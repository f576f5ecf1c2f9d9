#pragma once

#include "platform/ImageConverting.h"

#include <map>
#include <string>
#include <vector>

namespace brindlex {

/// Knows some pictures: texts that stand for them. Main thread only.
class SimulatedImageConverting final : public ImageConverting {
public:
    Result<std::string, ImageProblem> pngOf(std::string_view picture) override
    {
        asked.emplace_back(picture);
        const auto found = pngs.find(picture);
        if (found == pngs.end())
            return fail(ImageProblem::noPicture);
        return found->second;
    }

    /// What becomes of each picture.
    std::map<std::string, Result<std::string, ImageProblem>, std::less<>> pngs{};

    /// The pictures that were to be converted so far, in order.
    std::vector<std::string> asked{};
};

} // namespace brindlex
