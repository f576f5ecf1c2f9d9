#pragma once

#include "platform/ImageConverting.h"

namespace brindlex {

/// Reads pictures with the decoders of Qt, each format with its own.
class QtImageConverting final : public ImageConverting {
public:
    Result<std::string, ImageProblem> pngOf(std::string_view picture) override;
};

} // namespace brindlex
