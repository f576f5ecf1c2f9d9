#include "support/views/ScreenGallery.h"

#include "applications/views/ApplicationChooser.h"
#include "clipboard/views/ClipboardSettingsScreen.h"
#include "eventtap/views/KeysOfReader.h"
#include "inputmethod/views/InputMethodSettingsScreen.h"
#include "logviewer/views/LogWindow.h"
#include "mouse/views/MouseSettingsScreen.h"
#include "shell/ShellPreferenceKeys.h"
#include "shell/WindowScenes.h"
#include "shell/views/AboutScreen.h"
#include "shell/views/GeneralScreen.h"
#include "shell/views/MainWindow.h"
#include "shell/views/PermissionGuideScreen.h"
#include "shell/views/UpdateDialog.h"
#include "support/clipboard/ClipboardRecords.h"

#include <QApplication>
#include <gtest/gtest.h>

#include <fstream>
#include <utility>

namespace brindlex {
namespace {

constexpr auto logLines
    = "2026-11-22T14:01:52.118Z INFO   [input-method] Brindlex/SwitchCoordinator:120 — Selected\n"
      "2026-11-22T14:01:53.000Z WARN   [mouse] Brindlex/Tap:12 — A button is held elsewhere\n"
      "2026-11-22T14:01:54.500Z ERROR  [ui] Brindlex/Window:7 — Something failed\n"
      "a line in another form\n";

} // namespace

ScreenGallery::ScreenGallery(StringCatalogue catalogue, Brightness brightness)
    : strings(std::move(catalogue)), theme({.tokens = themeTokens(brightness)})
{
    fill();
}

std::vector<std::string> ScreenGallery::names()
{
    return {"general", "keyboard", "keyboard-empty", "mouse", "mouse-empty", "clipboard",
        "clipboard-off", "dictation", "about", "logs", "chooser", "permissions",
        "permissions-missing", "update", "update-current", "update-failed"};
}

std::unique_ptr<QWidget> ScreenGallery::show(const std::string& name)
{
    auto window = make(name);
    window->show();
    runQueue();
    QApplication::processEvents();
    return window;
}

void ScreenGallery::runQueue()
{
    queue.drain();
    computer.mainThread.runUntilIdle();
}

KeyRecording ScreenGallery::recording()
{
    return {tap, computer.activation,
        keysOfReader(context(), [](std::int64_t) { return std::string("t"); })};
}

void ScreenGallery::fill()
{
    computer.programWindows.addScene(std::string(windowScene::permissions.id));
    computer.inputSources.install(SimulatedInputSources::keyboard("xkb:us::eng", "English (US)"));
    computer.inputSources.install(SimulatedInputSources::keyboard("xkb:de::deu", "German"));
    computer.bundles.install(
        "/apps/editor", {.identifier = "org.example.Editor", .displayName = "Editor"});
    computer.bundles.install(
        "/apps/mail", {.identifier = "org.example.Mail", .displayName = "Mail"});
    inputMethod.refreshSources();
    computer.userFolders.homeFolder = folder.path();
    log.setFolder(folder.path());
    std::ofstream(Log::fileURL(Log::Subsystem::app).value()) << logLines;
}

/// A picture of a megabyte and a half, and texts.
void ScreenGallery::fillClipboard()
{
    const auto picture = imageItem();
    ASSERT_TRUE(clipboardStore.writeBlob(*picture.imageBlobName, std::string(3 << 19, 'x')));
    clipboardStore.add(picture);
    for (int text = 0; text < 30; ++text)
        clipboardStore.add(textItem(std::to_string(text), text));
}

/// A rule has switched for the application, and the user has changed it.
void ScreenGallery::noteOverriddenSwitch(const std::string& bundleID)
{
    const InputMethodSwitchDecision decision{
        bundleID, {}, "xkb:de::deu", InputMethodSwitchDecisionSource::manualAppRule};
    const auto context = autoSwitchContext(decision);
    SwitchState state;
    state.override = {context, context, decision.inputSourceID};
    state.standing.isChosenSinceSwitch = true;
    state.lastInputSourceID = "xkb:us::eng";
    const auto now = computer.clock.now();
    reasons.noteSwitch(decision, inputMethod.smartConfig(), now);
    reasons.noteEvent(SwitchEvent::InputSourceChanged{}, state, now);
}

UpdateMessage ScreenGallery::updateMessageOf(const std::string& name) const
{
    const ProgramBundle program{.name = "Brindlex", .shortVersion = "1.1.0"};
    const UpdateFeed feed{
        {1, 2, 0, {}, ""}, "2026-11-22", "Faster switching.\nMore browsers.", "https://a.example"};
    if (name == "update-current")
        return updateMessage(UpdateCheckResult::Current{}, program, strings);
    if (name == "update-failed")
        return updateMessage(UpdateCheckResult::Failed{UpdateCheckResult::Reason::unreachable,
                                 "SSL peer certificate or SSH remote key was not OK"},
            program, strings);
    return updateMessage(UpdateCheckResult::Newer{feed}, program, strings);
}

std::unique_ptr<QWidget> ScreenGallery::make(const std::string& name)
{
    if (name.starts_with("update"))
        return std::make_unique<UpdateDialog>(
            context(), updateMessageOf(name), [](const std::string&) {});
    if (name == "logs") {
        auto window = std::make_unique<LogWindow>(
            context(), computer.mainThread, [](const std::filesystem::path&) {});
        window->resize(windowScene::logs.width, windowScene::logs.height);
        return window;
    }
    if (name.starts_with("permissions")) {
        computer.automation.system = AutomationPermission::State::on;
        if (name == "permissions-missing") {
            computer.automation.system = AutomationPermission::State::off;
            computer.eventPermissions.set(false);
        }
        auto window = std::make_unique<PermissionGuideScreen>(context(), permissions);
        window->resize(windowScene::permissions.width, windowScene::permissions.height);
        return window;
    }
    if (name == "chooser")
        return std::unique_ptr<QWidget>(new ApplicationChooser(
            context(),
            {{"org.example.Editor", "Editor", "/apps/editor", true},
                {"org.example.Mail", "Mail", "/apps/mail", false}},
            [](const std::filesystem::path&) { return QIcon(); },
            [](const auto&) { return Subscription(); }, [](const std::filesystem::path&) {},
            nullptr));
    if (name == "keyboard") {
        inputMethod.addAppRule("/apps/editor");
        const auto id = inputMethod.addAppRule("/apps/mail");
        inputMethod.setAppRuleSource(*id, "ibus:libpinyin");
        inputMethod.addDomainRule("github.com");
        inputMethod.changeSmart([](SmartInputMethodConfig& config) {
            for (int sample = 0; sample < 12; ++sample)
                config.recordSample("xkb:de::deu", {"org.example.Code", "Code", {}}, Date{});
            config.recordSample("xkb:us::eng", {"org.example.Notes", "Notes", {}}, Date{});
        });
        noteOverriddenSwitch("org.example.Editor");
    }
    if (name == "mouse") {
        const auto id = mouse.addClickBinding();
        mouse.replaceClickBinding({id, MouseButton::button3, {},
            MouseAction::SendKeystroke{17, ModifierSet::control | ModifierSet::option}});
        mouse.addClickBinding();
        mouse.addGestureBinding();
        mouse.addDisabledApp("/apps/mail");
    }
    if (name == "clipboard")
        fillClipboard();
    if (name == "clipboard-off")
        clipboard.setHistoryEnabled(false);
    const auto chooseApplication = [this](auto chosen) {
        ++choices;
        chosen(chosenApplication);
    };
    const auto tab = name.starts_with("keyboard") ? MainWindowTab::keyboard
        : name.starts_with("mouse")               ? MainWindowTab::mouse
        : name.starts_with("clipboard")           ? MainWindowTab::clipboard
        : name == "about"                         ? MainWindowTab::about
        : name == "dictation"                     ? MainWindowTab::dictation
                                                  : MainWindowTab::general;
    writePreference(computer.defaults, ShellPreferenceKeys{}.selectedMainWindowTab, tab);
    auto window = std::make_unique<MainWindow>(context(), computer.defaults,
        MainWindow::Screens{
            {MainWindowTab::general,
                [this] { return new GeneralScreen(context(), general, computer.defaults); }},
            {MainWindowTab::keyboard,
                [this, chooseApplication] {
                    return new InputMethodSettingsScreen(context(), inputMethod, inputMethodStore,
                        smartStore, reasons, chooseApplication);
                }},
            {MainWindowTab::mouse,
                [this, chooseApplication] {
                    return new MouseSettingsScreen(
                        context(), mouse, mouseStore, recording(), chooseApplication);
                }},
            {MainWindowTab::clipboard,
                [this] {
                    return new ClipboardSettingsScreen(context(), clipboard, recording(),
                        [this](const std::filesystem::path& opened) {
                            openedFolders.push_back(opened);
                        });
                }},
            {MainWindowTab::about,
                [this] {
                    return new AboutScreen(context(),
                        {{.name = "Brindlex", .shortVersion = "1.2.3", .commit = "0123456789ab"},
                            {.website = "https://example.org", .support = "mailto:a@example.org"},
                            {{"Qt", "LGPL-3.0"}}},
                        {[](const std::string&) {}, [] {}});
                }},
        });
    window->resize(windowScene::main.width, windowScene::main.height);
    return window;
}

} // namespace brindlex
