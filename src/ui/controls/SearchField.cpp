#include "ui/controls/SearchField.h"

#include "ui/controls/Glyph.h"

#include <QKeyEvent>

namespace brindlex {
namespace {

/// Nobody looks for more, and nothing has to be drawn for it.
constexpr int mostCharacters = 2'000;

} // namespace

SearchField::SearchField(const Theme& theme, const QString& hint, QWidget* parent)
    : QLineEdit(parent)
{
    setPlaceholderText(hint);
    setAccessibleName(hint);
    setMaxLength(mostCharacters);
    addAction(glyphIcon(theme, Glyph::search, &ThemeTokens::subdued), QLineEdit::LeadingPosition);
}

void SearchField::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape && !text().isEmpty())
        clear();
    else
        QLineEdit::keyPressEvent(event);
}

} // namespace brindlex
