#include "ui/controls/EmptyState.h"

#include "ui/controls/Buttons.h"
#include "ui/controls/GlyphLabel.h"
#include "ui/controls/TextLabel.h"
#include "ui/controls/TextSize.h"

#include <QVBoxLayout>

#include <utility>

namespace brindlex {
namespace {

constexpr int margin = 20;
constexpr int gap = 10;
constexpr int glyphSize = 32;
constexpr int sentenceWidth = 360;

} // namespace

EmptyState::EmptyState(const Theme& theme, Glyph glyph, const QString& sentence,
    const QString& action, std::function<void()> pressed, QWidget* parent)
    : QWidget(parent)
{
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(margin, margin, margin, margin);
    layout->setSpacing(gap);
    layout->addWidget(new GlyphLabel(glyphIcon(theme, glyph, &ThemeTokens::subdued), glyphSize), 0,
        Qt::AlignHCenter);
    auto* const words = new TextLabel(theme, TextRole::second, sentence);
    words->setAlignment(Qt::AlignCenter);
    followTextSize(*words, [words] {
        words->setFixedWidth(grownWithText(sentenceWidth));
        words->setMinimumHeight(words->heightForWidth(words->maximumWidth()));
    });
    layout->addWidget(words, 0, Qt::AlignHCenter);
    if (!action.isEmpty())
        layout->addWidget(
            makeButton(theme, ButtonRole::plain, action, std::move(pressed), Glyph::add), 0,
            Qt::AlignHCenter);
}

} // namespace brindlex
