#pragma once

#include "ui/controls/ViewContext.h"

#include <QWidget>

namespace brindlex {

/// Stands in a tab whose screen is still to come.
class TabPlaceholder : public QWidget {
public:
    explicit TabPlaceholder(const ViewContext& context, QWidget* parent = nullptr);
};

} // namespace brindlex
