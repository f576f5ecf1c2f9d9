#pragma once

#include "app/SharedInstances.h"
#include "app/linux/LinuxPlatform.h"
#include "applications/AppIdentifierLoader.h"
#include "applications/ApplicationDirectory.h"
#include "applications/ApplicationRecency.h"
#include "clipboard/ClipboardSettings.h"
#include "clipboard/views/ClipboardRowPictures.h"
#include "eventtap/views/KeyRecorderField.h"
#include "foundation/MadeOnFirstUse.h"
#include "inputmethod/InputMethodSettings.h"
#include "inputmethod/TextInputSourceService.h"
#include "mouse/MouseSettings.h"
#include "platform/posix/SerialQueue.h"
#include "shell/GeneralSettings.h"
#include "shell/PermissionGuide.h"
#include "shell/views/UpdateDialog.h"
#include "ui/controls/ViewContext.h"

#include <QPointer>

#include <vector>

class QIcon;
class QWidget;

namespace brindlex {

/// What the windows of the program show. Each is made when it is opened; its arguments outlive it.
/// Main thread only.
class ProgramScreens {
public:
    ProgramScreens(LinuxPlatform& linuxPlatform, SharedInstances& shared);
    ~ProgramScreens();
    ProgramScreens(const ProgramScreens&) = delete;
    ProgramScreens& operator=(const ProgramScreens&) = delete;

private:
    /// What the screens are views of.
    struct Models {
        Models(Platform& platform, SharedInstances& shared);

        AppIdentifierLoader loader;
        TextInputSourceService sources;
        InputMethodSettings inputMethod;
        MouseSettings mouse;
        ClipboardSettings clipboard;
        GeneralSettings general;
        PermissionGuide permissions;
    };

    ViewContext context() { return {theme_, shared_.strings()}; }
    Models& models() { return models_.get(platform_, shared_); }
    KeyRecording keyRecording();
    void present(const WindowScene& scene);
    void showUpdate(const UpdateMessage& message);
    void chooseApplication(std::function<void(const std::filesystem::path&)> chosen);
    Subscription pickWindow(
        std::function<void(const std::optional<std::filesystem::path>&)> picked);
    QIcon pictureOf(const std::filesystem::path& bundle);
    QIcon iconOf(const std::string& bundleID);
    QString nameInPreview(const std::filesystem::path& file);
    Size hostPicker(const std::shared_ptr<ClipboardPicker>& picker);

    std::unique_ptr<QWidget> makeMainWindow();
    std::unique_ptr<QWidget> makeLogWindow();
    std::unique_ptr<QWidget> makePermissionGuide();
    std::unique_ptr<QWidget> makeUpdateDialog();
    QWidget* makeGeneral();
    QWidget* makeKeyboard();
    QWidget* makeMouse();
    QWidget* makeClipboard();
    QWidget* makeAbout();

    LinuxPlatform& linuxPlatform_;
    Platform& platform_;
    SharedInstances& shared_;
    Theme theme_;
    Subscription appearance_;
    ApplicationRecency recency_;
    ApplicationDirectory directory_;
    SerialQueue pictureQueue_{"Brindlex.Pict"};
    MadeOnFirstUse<ClipboardRowPictures> rowPictures_;
    Subscription picturesMade_;
    MadeOnFirstUse<Models> models_;
    UpdateMessage update_;
    QPointer<UpdateDialog> updateDialog_;
    std::vector<Subscription> scenes_;
};

} // namespace brindlex
