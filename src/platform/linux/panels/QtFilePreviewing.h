#pragma once

#include "platform/FilePreviewing.h"

#include <QSize>

#include <functional>
#include <memory>

class QWidget;

namespace brindlex {

/// A window over all others that the window manager does not know of, that never has the keys and
/// lets every click through, in the middle of the screen with the pointer. Needs the Qt
/// application; main thread only.
class QtFilePreviewing : public FilePreviewing {
public:
    using Files = std::vector<std::filesystem::path>;
    /// Makes the view of files, as large as it has to be and no larger than `most`.
    using View = std::function<std::unique_ptr<QWidget>(const Files& files, const QSize& most)>;

    QtFilePreviewing();
    ~QtFilePreviewing() override;

    /// Nothing is shown before there is a view.
    void setView(View view) { view_ = std::move(view); }

    void show(const Files& files) override;
    void close() override;

private:
    View view_;
    std::unique_ptr<QWidget> window_;
};

} // namespace brindlex
