#pragma once

#include "shell/UpdateMessage.h"
#include "ui/controls/Buttons.h"
#include "ui/controls/TextLabel.h"
#include "ui/controls/ViewContext.h"

#include <QDialog>

#include <functional>
#include <string>

class QPlainTextEdit;

namespace brindlex {

/// What a check for updates has found. Without notes it is as high as its words need; with notes it
/// can be made larger, and they scroll. Its arguments outlive it.
class UpdateDialog : public QDialog {
public:
    /// `openPage` is called with the address of the message when the user wants to see that page,
    /// which closes the dialog.
    UpdateDialog(const ViewContext& context, const UpdateMessage& message,
        std::function<void(const std::string& address)> openPage);

    /// Shows another message in place of the one before.
    void setMessage(const UpdateMessage& message);

protected:
    bool event(QEvent* event) override;

private:
    QWidget* makeHead();
    QWidget* makeNotes();
    QWidget* makeFoot();
    void visitPage();
    void fit();

    const ViewContext context_;
    const std::function<void(const std::string& address)> openPage_;
    UpdateMessage message_;
    TextLabel* title_ = nullptr;
    TextLabel* detail_ = nullptr;
    QWidget* notesBox_ = nullptr;
    QPlainTextEdit* notes_ = nullptr;
    QPushButton* close_ = nullptr;
    QPushButton* openPageButton_ = nullptr;
};

} // namespace brindlex
