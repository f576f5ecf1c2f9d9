#pragma once

#include "catalogue/texts/AboutDetailTexts.h"
#include "catalogue/texts/AboutTexts.h"
#include "catalogue/texts/CatalogueRow.h"
#include "catalogue/texts/ChooserTexts.h"
#include "catalogue/texts/ClipboardTabTexts.h"
#include "catalogue/texts/ClipboardTexts.h"
#include "catalogue/texts/ControlsTexts.h"
#include "catalogue/texts/FinderTexts.h"
#include "catalogue/texts/GeneralTexts.h"
#include "catalogue/texts/GuideTexts.h"
#include "catalogue/texts/InputMethodTexts.h"
#include "catalogue/texts/KeysTexts.h"
#include "catalogue/texts/LogTableTexts.h"
#include "catalogue/texts/LogsTexts.h"
#include "catalogue/texts/MenubarTexts.h"
#include "catalogue/texts/MouseTexts.h"
#include "catalogue/texts/OcrTexts.h"
#include "catalogue/texts/PermissionsTexts.h"
#include "catalogue/texts/PickerTexts.h"
#include "catalogue/texts/PlaceholderTexts.h"
#include "catalogue/texts/SharedTexts.h"
#include "catalogue/texts/TabTexts.h"
#include "catalogue/texts/UpdatesTexts.h"
#include "catalogue/texts/WhyTexts.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <string_view>

namespace brindlex {

/// The rows of several groups one after the other.
template <std::size_t... sizes>
consteval auto joinedRows(const std::array<CatalogueRow, sizes>&... groups)
{
    std::array<CatalogueRow, (sizes + ...)> rows{};
    auto end = rows.begin();
    ((end = std::copy(groups.begin(), groups.end(), end)), ...);
    return rows;
}

/// Every text of the program.
inline constexpr auto catalogueTable
    = joinedRows(tabTexts, clipboardTexts, generalTexts, menubarTexts, ocrTexts, sharedTexts,
        finderTexts, inputMethodTexts, mouseTexts, aboutTexts, logsTexts, permissionsTexts,
        placeholderTexts, controlsTexts, chooserTexts, whyTexts, updatesTexts, guideTexts,
        logTableTexts, aboutDetailTexts, keysTexts, pickerTexts, clipboardTabTexts);

/// Where the key stands in the table; its size for a key that does not.
constexpr std::size_t catalogueIndex(std::string_view key)
{
    const auto found = std::find_if(catalogueTable.begin(), catalogueTable.end(),
        [&](const CatalogueRow& row) { return row.key == key; });
    return static_cast<std::size_t>(found - catalogueTable.begin());
}

} // namespace brindlex
