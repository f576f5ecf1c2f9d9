#pragma once

#include "logviewer/LogScreen.h"
#include "ui/controls/ViewContext.h"

#include <QAbstractTableModel>

#include <optional>
#include <string>

namespace brindlex {

/// When an entry was written, by the clock of the user; the text of the file where that is none.
QString timeOf(const LogEntry& entry);
/// The same with the day.
QString dayAndTimeOf(const LogEntry& entry);

/// The entries of a log that are shown, as a table. Entries that come at the end are added to it,
/// so that a view keeps its place.
class LogTableModel : public QAbstractTableModel {
public:
    enum Column { time, level, category, message, columns };

    LogTableModel(const ViewContext& context, const LogScreen& screen, QObject* parent);

    /// Takes over what the screen shows now.
    void show();
    const LogEntry& entryAt(int row) const;
    /// Where the entry stands; nothing when it is not shown.
    std::optional<int> rowOf(const std::string& entryID) const;

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    bool hasOnlyGrown() const;
    void remember();

    const ViewContext context_;
    const LogScreen& screen_;
    int rows_ = 0;
    /// Of what is in the table now.
    std::string firstID_;
    std::string lastID_;
};

} // namespace brindlex
