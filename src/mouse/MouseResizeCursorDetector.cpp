#include "mouse/MouseResizeCursorDetector.h"

#include "mouse/ResizeControlSearch.h"
#include "mouse/WindowEdge.h"

#include <array>
#include <functional>
#include <string_view>

namespace brindlex {
namespace {

/// In the order in which a cursor is compared with them.
constexpr std::array<std::string_view, 14> candidateNames{"resizeLeftRight", "resizeUpDown",
    "resizeLeft", "resizeRight", "resizeUp", "resizeDown", "columnResize", "columnResizeLeft",
    "columnResizeRight", "columnResizeLeftRight", "rowResize", "rowResizeUp", "rowResizeDown",
    "rowResizeUpDown"};

bool matches(const CursorImage& candidate, const CursorImage& cursor)
{
    const bool isSame = candidate.identity != 0 && candidate.identity == cursor.identity;
    const bool looksSame = candidate.hotSpot == cursor.hotSpot && candidate.size == cursor.size
        && candidate.picture == cursor.picture;
    return isSame || looksSame;
}

} // namespace

MouseResizeCursorDetector::MouseResizeCursorDetector(CursorReading& cursor,
    AccessibilityTree& accessibility, WindowList& windows, const DisplayScale& scale)
    : cursor_(cursor), accessibility_(accessibility), windows_(windows), scale_(scale)
{
}

MouseResizeDragDecision MouseResizeCursorDetector::decide(Point point)
{
    const MouseCursorDiagnosticSnapshot snapshot{
        item("currentSystem", cursor_.currentSystem()), item("current", cursor_.current())};
    MouseResizeDragDecision decision{true, "", point, snapshot.text(), "skipped", false};
    if (snapshot.isResizeCursor()) {
        decision.reason = "cursor";
        return decision;
    }
    if (snapshot.isCustomSystemCursor()) {
        decision.reason = "customCursor";
        return decision;
    }
    const auto search = searchResizeControl(accessibility_, point);
    decision.accessibilitySummary = search.summary();
    if (search.isFound) {
        decision.reason = "axResizeControl";
        return decision;
    }
    decision.windowEdge = isOnWindowEdge(windows_, accessibility_, point, scale_.unitsPerPoint());
    decision.shouldBypass = decision.windowEdge;
    decision.reason = decision.windowEdge ? "windowEdge" : "none";
    return decision;
}

MouseCursorDiagnosticItem MouseResizeCursorDetector::item(
    const std::string& source, const std::optional<CursorImage>& cursor)
{
    MouseCursorDiagnosticItem item{source, {}, {}, {}, {}};
    if (!cursor)
        return item;
    for (const auto& candidate : candidates()) {
        if (!matches(candidate.cursor, *cursor))
            continue;
        item.matchedName = candidate.name;
        break;
    }
    item.hotSpot = cursor->hotSpot;
    item.imageSize = cursor->size;
    item.imageHash = static_cast<std::int64_t>(std::hash<std::string>()(cursor->picture));
    return item;
}

const std::vector<ResizeCursorCandidate>& MouseResizeCursorDetector::candidates()
{
    if (!candidates_) {
        candidates_.emplace();
        for (const auto name : candidateNames)
            for (auto& look : cursor_.looks(name))
                candidates_->push_back({std::string(name), std::move(look)});
    }
    return *candidates_;
}

} // namespace brindlex
