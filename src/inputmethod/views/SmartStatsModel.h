#pragma once

#include "inputmethod/InputMethodSettings.h"
#include "ui/controls/ViewContext.h"

#include <QAbstractTableModel>

#include <vector>

namespace brindlex {

/// What was learned of the applications, as a table. The first cell of a row also says why its
/// application has its source. The check mark of the last column switches
/// the learned rule of an application off.
class SmartStatsModel : public QAbstractTableModel {
public:
    enum Column { app, status, inputSource, samples, match, disabled, columns };

    SmartStatsModel(const ViewContext& context, InputMethodSettings& settings, QObject* parent);

    /// Shows what the settings have now.
    void show();
    const SmartInputMethodAppStats& statsAt(int row) const
    {
        return stats_[static_cast<std::size_t>(row)];
    }

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;

private:
    QString text(const SmartInputMethodAppStats& stats, int column) const;
    QString statusText(SmartInputMethodStatus shown) const;
    /// By which the rows are sorted when the user asks for it.
    QVariant sortValue(const SmartInputMethodAppStats& stats, int column) const;

    const ViewContext context_;
    InputMethodSettings& settings_;
    std::vector<SmartInputMethodAppStats> stats_;
};

} // namespace brindlex
