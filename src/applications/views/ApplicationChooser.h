#pragma once

#include "applications/ApplicationChoices.h"
#include "applications/views/ApplicationChoosing.h"
#include "ui/controls/SearchField.h"
#include "ui/controls/ViewContext.h"

#include <QDialog>

#include <functional>
#include <optional>

class QListView;
class QPushButton;
class QStackedWidget;

namespace brindlex {

/// A list of applications to choose one from, over a window. One that is not in it is chosen by a
/// click on a window of it; meanwhile the list is out of the way. It opens by `open`, destroys
/// itself when it is closed, and calls `chosen` at the most once.
class ApplicationChooser : public QDialog {
public:
    /// The picture of an application, by the path of its bundle; asked for when it comes into
    /// sight. A null one stands for none.
    using Pictures = std::function<QIcon(const std::filesystem::path& bundle)>;

    /// Lets the user point at a window; calls back once with the path by which its application is
    /// chosen, or with nothing. Not at all after the end of the subscription.
    using Picking = std::function<Subscription(
        std::function<void(const std::optional<std::filesystem::path>& bundle)> picked)>;

    ApplicationChooser(const ViewContext& context, std::vector<ApplicationChoice> choices,
        Pictures pictures, Picking pick,
        std::function<void(const std::filesystem::path& bundle)> chosen, QWidget* parent);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    class Model;

    void makeSearch();
    void makeList();
    QWidget* makeFoot();
    void search(const QString& query);
    void choose();
    void pickWindow();
    void notePicked(const std::optional<std::filesystem::path>& bundle);

    const ViewContext context_;
    const std::vector<ApplicationChoice> choices_;
    const Picking pick_;
    const std::function<void(const std::filesystem::path& bundle)> chosen_;
    Subscription picking_;
    SearchField* const search_;
    QListView* const list_;
    Model* const model_;
    QStackedWidget* const middle_;
    QPushButton* choose_ = nullptr;
};

} // namespace brindlex
