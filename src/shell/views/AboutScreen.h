#pragma once

#include "platform/ProgramBundle.h"
#include "ui/controls/Buttons.h"
#include "ui/controls/Page.h"

#include <functional>
#include <string>
#include <vector>

namespace brindlex {

/// Where the maker of the program can be reached: addresses that the build names; an empty one has
/// no link.
struct AboutLinks {
    std::string website{};
    std::string support{};
    std::string privacyPolicy{};
    std::string termsOfService{};
};

/// A library that the program is made with.
struct AboutLibrary {
    std::string name{};
    std::string licence{};
};

/// What the program is: name, version, links, what it is made with, and its log.
class AboutScreen : public Page {
public:
    struct Content {
        ProgramBundle program{};
        AboutLinks links{};
        std::vector<AboutLibrary> libraries{};
    };
    struct Actions {
        std::function<void(const std::string& address)> openURL{};
        std::function<void()> openLogs{};
    };

    AboutScreen(const ViewContext& context, const Content& content, Actions actions);

protected:
    void showEvent(QShowEvent* event) override;

private:
    void addHead(const Content& content);
    void addLinks(const AboutLinks& links);
    void addLink(Card*& card, const QString& text, const std::string& address, const char* logLine);
    QPushButton* makeOpenButton(
        ButtonRole role, const QString& what, std::function<void()> pressed) const;
    void addLibraries(const std::vector<AboutLibrary>& libraries);

    const ViewContext context_;
    const Actions actions_;
};

} // namespace brindlex
