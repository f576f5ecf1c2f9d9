#pragma once

#include "foundation/Lifetime.h"
#include "foundation/Subscribers.h"
#include "platform/ProgramWindows.h"
#include "platform/linux/x11/X11Connection.h"

#include <QSize>
#include <QWidget>

#include <functional>
#include <map>
#include <memory>
#include <string>

namespace brindlex {

/// The program's windows as widgets, each made when it is opened and destroyed when it is closed:
/// a program without open windows has none in memory. Made after the application object, which is
/// that of widgets. Main thread only.
class QtProgramWindows : public ProgramWindows {
public:
    /// A window that the program can have.
    struct Scene {
        std::string id{};
        /// The name under which the desktop knows the window (`WM_WINDOW_ROLE`).
        std::string identifier{};
        /// In which it opens, unless `make` gives it one.
        QSize size{};
        /// Makes the window, with its title, and does not show it.
        std::function<std::unique_ptr<QWidget>()> make{};
    };

    /// At `sessionBus`, if that replies, assistive technology finds the windows.
    QtProgramWindows(X11Connection& connection, std::string sessionBus);
    ~QtProgramWindows() override;
    QtProgramWindows(const QtProgramWindows&) = delete;
    QtProgramWindows& operator=(const QtProgramWindows&) = delete;

    /// The scene is there until the end of the subscription, which destroys its window: what the
    /// window shows outlives the subscription.
    Subscription addScene(Scene scene);

    bool hasScene(const std::string& scene) const override;
    std::optional<ProgramWindow> window(const std::string& scene) const override;
    void open(const std::string& scene) override;
    bool bringForward(ProgramWindow window) override;
    bool isVisible(ProgramWindow window) const override;
    Subscription observeDidOpen(Handler handler) override;
    Subscription observeWillClose(Handler handler) override;

private:
    class OpenWindow;
    using OpenWindows = std::map<ProgramWindow, std::unique_ptr<OpenWindow>>;

    QWidget* widgetOf(ProgramWindow window) const;
    void offerToAssistiveTechnology();
    void noteClosing(ProgramWindow window);
    void removeScene(const std::string& id);

    X11Connection& connection_;
    const std::string sessionBus_;
    bool isOffered_ = false;
    std::map<std::string, Scene> scenes_;
    OpenWindows windows_;
    std::uint64_t opened_ = 0;
    Subscribers<Handler> didOpen_;
    Subscribers<Handler> willClose_;
    Lifetime lifetime_;
};

} // namespace brindlex
