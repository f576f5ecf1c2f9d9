#pragma once

#include "catalogue/texts/CatalogueRow.h"

#include <array>

namespace brindlex {

/// The panel of recognised text.
inline constexpr auto ocrTexts = std::to_array<CatalogueRow>({
    {"ocr.copy", "Copy"},
    {"ocr.emptyResult", "No text recognized."},
    {"ocr.missingToken", "Configure a Baidu OCR API token in General first."},
    {"ocr.resultTitle", "Recognized Text"},
    {"ocr.windowTitle", "Screenshot OCR"},
});

} // namespace brindlex
