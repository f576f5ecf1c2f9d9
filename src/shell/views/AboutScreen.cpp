#include "shell/views/AboutScreen.h"

#include "log/Log.h"

#include <QApplication>
#include <QLabel>
#include <QShowEvent>
#include <QVBoxLayout>

#include <utility>

namespace brindlex {
namespace {

constexpr int iconSize = 64;
constexpr int aroundHead = 12;

} // namespace

AboutScreen::AboutScreen(const ViewContext& context, const Content& content, Actions actions)
    : Page(context), context_(context), actions_(std::move(actions))
{
    addHead(content);
    addLinks(content.links);
    const auto logs = context.text<"logs.windowTitle">();
    section().setting(
        logs, {}, makeOpenButton(ButtonRole::plain, logs, [this] { actions_.openLogs(); }));
    addLibraries(content.libraries);
    finish();
}

void AboutScreen::showEvent(QShowEvent* event)
{
    if (!event->spontaneous())
        Log::info("About screen appeared", logCategory::ui);
    Page::showEvent(event);
}

void AboutScreen::addHead(const Content& content)
{
    auto* const head = new QWidget;
    auto* const layout = new QVBoxLayout(head);
    layout->setContentsMargins(0, aroundHead, 0, 2 * aroundHead);
    layout->setSpacing(2);
    auto* const picture = new QLabel;
    picture->setPixmap(QApplication::windowIcon().pixmap(iconSize));
    picture->setAlignment(Qt::AlignCenter);
    layout->addWidget(picture);
    layout->addSpacing(aroundHead / 2);
    const auto addLine = [&](TextRole role, const QString& text) {
        auto* const line = new TextLabel(context_.theme, role, text);
        line->setAlignment(Qt::AlignCenter);
        line->setTextInteractionFlags(Qt::TextSelectableByMouse);
        layout->addWidget(line);
    };
    addLine(TextRole::title, QString::fromStdString(content.program.name));
    addLine(
        TextRole::value, context_.text<"about.versionLineFormat">(content.program.shortVersion));
    if (!content.program.commit.empty())
        addLine(
            TextRole::second, context_.text<"aboutDetail.commitFormat">(content.program.commit));
    add(head);
}

void AboutScreen::addLinks(const AboutLinks& links)
{
    Card* card = nullptr;
    addLink(card, context_.text<"about.website.title">(), links.website, "Open website requested");
    addLink(
        card, context_.text<"about.support.title">(), links.support, "Contact support requested");
    addLink(card, context_.text<"about.website.privacy">(), links.privacyPolicy,
        "Open privacy policy requested");
    addLink(card, context_.text<"about.website.terms">(), links.termsOfService,
        "Open terms of service requested");
}

void AboutScreen::addLink(
    Card*& card, const QString& text, const std::string& address, const char* logLine)
{
    if (address.empty())
        return;
    if (!card)
        card = &section();
    card->setting(text, {}, makeOpenButton(ButtonRole::link, text, [this, address, logLine] {
        Log::notice(logLine, logCategory::ui);
        actions_.openURL(address);
    }));
}

/// All of these say the same to the eyes, and to a screen reader what they open.
QPushButton* AboutScreen::makeOpenButton(
    ButtonRole role, const QString& what, std::function<void()> pressed) const
{
    const auto open = context_.text<"controls.open">();
    auto* const button = makeButton(context_.theme, role, open, std::move(pressed));
    button->setAccessibleName(open + QStringLiteral(": ") + what);
    return button;
}

void AboutScreen::addLibraries(const std::vector<AboutLibrary>& libraries)
{
    auto& card = section(context_.text<"aboutDetail.libraries">());
    for (const auto& library : libraries) {
        auto* const row = new Row(context_.theme);
        row->words(QString::fromStdString(library.name))
            .end(new TextLabel(
                context_.theme, TextRole::value, QString::fromStdString(library.licence)));
        card.add(row);
    }
}

} // namespace brindlex
