#include "app/linux/ProgramScreens.h"

#include "app/linux/DesktopLook.h"
#include "app/linux/ProgramLinks.h"
#include "applications/views/ApplicationChooser.h"
#include "clipboard/views/ClipboardPickerView.h"
#include "clipboard/views/ClipboardSettingsScreen.h"
#include "clipboard/views/FilePreviewView.h"
#include "eventtap/views/KeysOfReader.h"
#include "inputmethod/views/InputMethodSettingsScreen.h"
#include "logviewer/views/LogWindow.h"
#include "mouse/views/MouseSettingsScreen.h"
#include "shell/views/AboutScreen.h"
#include "shell/views/GeneralScreen.h"
#include "shell/views/MainWindow.h"
#include "shell/views/PermissionGuideScreen.h"

#include <QApplication>
#include <QDesktopServices>
#include <QScreen>
#include <QUrl>

#include <utility>

namespace brindlex {
namespace {

const std::vector<AboutLibrary> libraries{
    {"Qt", "LGPL-3.0"},
    {"ICU", "Unicode-3.0"},
    {"JSON for Modern C++", "MIT"},
    {"libcurl", "curl"},
    {"libxcb, libX11", "X11"},
    {"libxkbcommon", "MIT"},
    {"systemd", "LGPL-2.1"},
    {"xcb-util-renderutil", "X11"},
};

/// In its folder, by the file manager.
void revealFile(const std::filesystem::path& file)
{
    QDesktopServices::openUrl(QUrl::fromLocalFile(QString::fromStdString(file.parent_path())));
}

/// In the file manager.
void openFolder(const std::filesystem::path& folder)
{
    QDesktopServices::openUrl(QUrl::fromLocalFile(QString::fromStdString(folder)));
}

/// In the browser, or whatever the desktop opens such an address with.
void openAddress(const std::string& address)
{
    QDesktopServices::openUrl(QUrl(QString::fromStdString(address)));
}

/// In the size in which it opens.
std::unique_ptr<QWidget> sized(std::unique_ptr<QWidget> window, const WindowScene& scene)
{
    window->resize(openingSize({scene.width, scene.height}, window->screen()->availableSize()));
    return window;
}

} // namespace

ProgramScreens::Models::Models(Platform& platform, SharedInstances& shared)
    : loader(platform.bundles, platform.icons, platform.container), sources(platform.inputSources),
      inputMethod(shared.inputMethod().configStore(), shared.inputMethod().smartConfigStore(),
          shared.inputMethod().switchReasons(), sources, loader, platform.clock),
      mouse(shared.mouse().configStore(), loader),
      clipboard(
          {platform.defaults, platform.mainThread, platform.userFolders, platform.historyQueue},
          shared.clipboard().store()),
      general(platform.defaults, shared.launchAtLoginManager(), shared.windows(),
          shared.languageManager()),
      permissions(platform.eventPermissions, platform.automation)
{
}

ProgramScreens::ProgramScreens(LinuxPlatform& linuxPlatform, SharedInstances& shared)
    : linuxPlatform_(linuxPlatform), platform_(linuxPlatform.abilities()), shared_(shared),
      recency_(platform_.applications), directory_(platform_.bundles, platform_.clock)
{
    appearance_ = linuxPlatform.appearance().subscribe(
        [this, usual = QApplication::font()](const DesktopAppearance& appearance) {
            // To an equal font every window would be laid out anew.
            const auto font = fontFor(appearance, usual);
            if (font != QApplication::font())
                QApplication::setFont(font);
            theme_.setLook(lookFor(appearance));
        });
    scenes_.push_back(
        linuxPlatform.addWindowScene(windowScene::main, [this] { return makeMainWindow(); }));
    scenes_.push_back(
        linuxPlatform.addWindowScene(windowScene::logs, [this] { return makeLogWindow(); }));
    scenes_.push_back(linuxPlatform.addWindowScene(
        windowScene::permissions, [this] { return makePermissionGuide(); }));
    scenes_.push_back(
        linuxPlatform.addWindowScene(windowScene::update, [this] { return makeUpdateDialog(); }));
    shared.softwareUpdateManager().onResult = [this](const UpdateCheckResult::Any& result) {
        showUpdate(updateMessage(result, platform_.program, shared_.strings()));
    };
    shared.setPickerHosting([this](const auto& picker) { return hostPicker(picker); });
    linuxPlatform.setPreviewView([this](const auto& files, const QSize& most) {
        auto view = std::make_unique<FilePreviewView>(
            context(), files, most, [this](const auto& file) { return nameInPreview(file); });
        theme_.dress(*view);
        return view;
    });
}

ProgramScreens::~ProgramScreens()
{
    shared_.softwareUpdateManager().onResult = nullptr;
    shared_.setPickerHosting(nullptr);
    linuxPlatform_.setPreviewView(nullptr);
    platform_.previewing.close();
    linuxPlatform_.emptyPanel();
}

KeyRecording ProgramScreens::keyRecording()
{
    return {shared_.globalEventTap(), platform_.activation,
        keysOfReader(context(), linuxPlatform_.keyCharacters())};
}

void ProgramScreens::present(const WindowScene& scene)
{
    shared_.windows().auxiliaryWindows().present(std::string(scene.id));
}

/// The message takes the place of one that is still there.
void ProgramScreens::showUpdate(const UpdateMessage& message)
{
    update_ = message;
    if (updateDialog_)
        updateDialog_->setMessage(message);
    present(windowScene::update);
}

void ProgramScreens::chooseApplication(std::function<void(const std::filesystem::path&)> chosen)
{
    auto* const chooser = new ApplicationChooser(
        context(), applicationChoices(platform_.bundles.installed(), recency_.use()),
        [this](const std::filesystem::path& bundle) { return pictureOf(bundle); },
        [this](auto picked) { return pickWindow(std::move(picked)); }, std::move(chosen),
        QApplication::activeWindow());
    chooser->open();
}

Subscription ProgramScreens::pickWindow(
    std::function<void(const std::optional<std::filesystem::path>&)> picked)
{
    return linuxPlatform_.windowPicking().pick([picked = std::move(picked)](const auto& found) {
        picked(found ? pathToChoose(*found) : std::nullopt);
    });
}

QIcon ProgramScreens::pictureOf(const std::filesystem::path& bundle)
{
    const auto png = platform_.icons.pictureOfApplication(bundle);
    QPixmap picture;
    if (png)
        picture.loadFromData(
            reinterpret_cast<const uchar*>(png->data()), static_cast<uint>(png->size()));
    return {picture};
}

QIcon ProgramScreens::iconOf(const std::string& bundleID)
{
    const auto path = directory_.path(bundleID);
    return path ? pictureOf(*path) : QIcon();
}

/// The file of a picture that was copied has a name that nobody has given it.
QString ProgramScreens::nameInPreview(const std::filesystem::path& file)
{
    const bool isCopied = file.parent_path() == shared_.clipboard().store().blobsDirectory();
    return isCopied ? context().text<"clipboard.item.image">() : QString();
}

Size ProgramScreens::hostPicker(const std::shared_ptr<ClipboardPicker>& picker)
{
    auto& pictures = rowPictures_.get(ClipboardRowPictures::Abilities{platform_.mainThread,
        pictureQueue_, shared_.clipboard().store(),
        [this](const std::string& bundleID) { return iconOf(bundleID); }});
    auto view = std::make_unique<ClipboardPickerView>(context(),
        keysOfReader(context(), linuxPlatform_.keyCharacters()),
        ClipboardRowSources{
            .applicationName =
                [this](const std::string& bundleID) {
                    return QString::fromStdString(directory_.name(bundleID));
                },
            .picture = [&pictures](const ClipboardItem& item) { return pictures.of(item); },
            .now = [this] { return platform_.clock.now(); },
        },
        picker);
    theme_.dress(*view);
    picturesMade_ = pictures.observe([view = view.get()] { view->showPictures(); });
    return linuxPlatform_.hostInPanel(std::move(view));
}

std::unique_ptr<QWidget> ProgramScreens::makeMainWindow()
{
    return sized(std::make_unique<MainWindow>(context(), platform_.defaults,
                     MainWindow::Screens{
                         {MainWindowTab::general, [this] { return makeGeneral(); }},
                         {MainWindowTab::keyboard, [this] { return makeKeyboard(); }},
                         {MainWindowTab::mouse, [this] { return makeMouse(); }},
                         {MainWindowTab::clipboard, [this] { return makeClipboard(); }},
                         {MainWindowTab::about, [this] { return makeAbout(); }},
                     }),
        windowScene::main);
}

std::unique_ptr<QWidget> ProgramScreens::makeLogWindow()
{
    return sized(std::make_unique<LogWindow>(context(), platform_.mainThread, revealFile),
        windowScene::logs);
}

std::unique_ptr<QWidget> ProgramScreens::makePermissionGuide()
{
    return sized(std::make_unique<PermissionGuideScreen>(context(), models().permissions),
        windowScene::permissions);
}

std::unique_ptr<QWidget> ProgramScreens::makeUpdateDialog()
{
    auto dialog = std::make_unique<UpdateDialog>(context(), update_, openAddress);
    updateDialog_ = dialog.get();
    return dialog;
}

QWidget* ProgramScreens::makeGeneral()
{
    return new GeneralScreen(context(), models().general, platform_.defaults);
}

QWidget* ProgramScreens::makeKeyboard()
{
    auto& subsystem = shared_.inputMethod();
    return new InputMethodSettingsScreen(context(), models().inputMethod, subsystem.configStore(),
        subsystem.smartConfigStore(), subsystem.switchReasons(),
        [this](auto chosen) { chooseApplication(std::move(chosen)); });
}

QWidget* ProgramScreens::makeMouse()
{
    return new MouseSettingsScreen(context(), models().mouse, shared_.mouse().configStore(),
        keyRecording(), [this](auto chosen) { chooseApplication(std::move(chosen)); });
}

QWidget* ProgramScreens::makeClipboard()
{
    return new ClipboardSettingsScreen(context(), models().clipboard, keyRecording(), openFolder);
}

QWidget* ProgramScreens::makeAbout()
{
    return new AboutScreen(context(), {platform_.program, programLinks(), libraries},
        {openAddress, [this] { present(windowScene::logs); }});
}

} // namespace brindlex
