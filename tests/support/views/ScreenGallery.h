#pragma once

#include "applications/AppIdentifierLoader.h"
#include "catalogue/StringCatalogue.h"
#include "clipboard/ClipboardSettings.h"
#include "eventtap/GlobalEventTap.h"
#include "eventtap/views/KeyRecorderField.h"
#include "inputmethod/InputMethodSettings.h"
#include "mouse/MouseSettings.h"
#include "platform/simulated/SimulatedComputer.h"
#include "platform/simulated/SimulatedQueue.h"
#include "shell/GeneralSettings.h"
#include "shell/PermissionGuide.h"
#include "shell/UpdateMessage.h"
#include "support/basics/RecordedLog.h"
#include "support/basics/TemporaryFolder.h"
#include "ui/controls/ViewContext.h"

#include <QWidget>

#include <memory>
#include <string>
#include <vector>

namespace brindlex {

/// All screens of the program over a computer in memory, with something in every list.
class ScreenGallery {
public:
    explicit ScreenGallery(StringCatalogue strings, Brightness brightness = Brightness::light);

    static std::vector<std::string> names();
    /// The screen in a window of its own, shown in the size in which it opens.
    std::unique_ptr<QWidget> show(const std::string& name);
    /// Lets be done what is to be done beside the main thread, and what comes of it.
    void runQueue();

    ViewContext context() const { return {theme, strings}; }
    KeyRecording recording();

    const StringCatalogue strings;
    const Theme theme;
    TemporaryFolder folder;
    RecordedLog log;
    SimulatedComputer computer;
    GlobalEventTap tap{computer.input, computer.eventPermissions, computer.activation};
    AppIdentifierLoader loader{computer.bundles, computer.icons, computer.container};
    TextInputSourceService sources{computer.inputSources};
    InputMethodConfigStore inputMethodStore{computer.defaults};
    SmartInputMethodConfigStore smartStore{computer.defaults};
    SwitchReasons reasons;
    InputMethodSettings inputMethod{
        inputMethodStore, smartStore, reasons, sources, loader, computer.clock};
    MouseConfigStore mouseStore{computer.defaults};
    MouseSettings mouse{mouseStore, loader};
    SimulatedQueue queue;
    ClipboardHistoryStore clipboardStore{
        {computer.mainThread, computer.clock, queue, computer.defaults},
        folder.path() / ".local/share/Brindlex/ClipboardHistory"};
    ClipboardSettings clipboard{
        {computer.defaults, computer.mainThread, computer.userFolders, queue}, clipboardStore};
    /// The folders that were opened in the file manager.
    std::vector<std::filesystem::path> openedFolders;
    LaunchAtLoginManager launchAtLogin{computer.defaults, computer.loginItem, computer.activation};
    ShellWindows windows{computer.platform()};
    LanguageManager language{computer.defaults, computer.relaunching, computer.instances};
    GeneralSettings general{computer.defaults, launchAtLogin, windows, language};
    PermissionGuide permissions{computer.eventPermissions, computer.automation};
    /// What the chooser of applications will give, and how often it was asked.
    std::filesystem::path chosenApplication = "/apps/editor";
    int choices = 0;

private:
    void fill();
    void fillClipboard();
    void noteOverriddenSwitch(const std::string& bundleID);
    UpdateMessage updateMessageOf(const std::string& name) const;
    std::unique_ptr<QWidget> make(const std::string& name);
};

} // namespace brindlex
