#include "shell/views/TabPlaceholder.h"

#include "ui/controls/EmptyState.h"

#include <QVBoxLayout>

namespace brindlex {

TabPlaceholder::TabPlaceholder(const ViewContext& context, QWidget* parent) : QWidget(parent)
{
    setObjectName("page");
    auto* const layout = new QVBoxLayout(this);
    layout->addWidget(
        new EmptyState(context.theme, Glyph::gear, context.text<"placeholder.comingSoon">()), 0,
        Qt::AlignCenter);
}

} // namespace brindlex
