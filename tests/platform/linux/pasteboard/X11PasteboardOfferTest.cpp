#include "platform/linux/pasteboard/X11PasteboardFixture.h"
#include "support/windows/PrimarySelection.h"

#include <algorithm>
#include <sstream>

namespace brindlex {
namespace {

using Manners = SelectionOwner::Manners;
using Texts = std::vector<std::string>;

struct X11PasteboardOffer : X11PasteboardFixture {
    /// The targets that applications are offered, sorted.
    static Texts targets()
    {
        std::istringstream lines(read("TARGETS"));
        Texts targets;
        for (std::string line; std::getline(lines, line);)
            targets.push_back(line);
        std::ranges::sort(targets);
        return targets;
    }

    xcb_window_t clipboardOwner() const
    {
        const XReply<xcb_get_selection_owner_reply_t> reply(
            xcb_get_selection_owner_reply(server.get(),
                xcb_get_selection_owner(server.get(), server.atom("CLIPBOARD")), nullptr));
        return reply ? reply->owner : xcb_window_t{XCB_WINDOW_NONE};
    }

    xcb_window_t window() const
    {
        const auto window = xcb_generate_id(server.get());
        xcb_create_window(server.get(), XCB_COPY_FROM_PARENT, window, server.root(), 0, 0, 1, 1, 0,
            XCB_WINDOW_CLASS_INPUT_ONLY, XCB_COPY_FROM_PARENT, 0, nullptr);
        return window;
    }

    /// Requests the target into the property of that name.
    void request(xcb_window_t window, const std::string& target, const std::string& property) const
    {
        xcb_convert_selection(server.get(), window, server.atom("CLIPBOARD"), server.atom(target),
            server.atom(property), XCB_CURRENT_TIME);
        server.sync();
    }

    XConnection server;
};

TEST_F(X11PasteboardOffer, hasTheTextThatWasWritten)
{
    pasteboard->write(PasteboardContent::Text{"café"});
    EXPECT_TRUE(eventually([&] { return read("UTF8_STRING") == "café"; }));
    EXPECT_EQ(read("STRING"), "caf\xE9");
    EXPECT_EQ(read("text/plain"), "café");
    EXPECT_EQ(read("image/png"), "nothing");
    EXPECT_EQ(targets(),
        (Texts{"MULTIPLE", "SAVE_TARGETS", "STRING", "TARGETS", "TIMESTAMP", "UTF8_STRING",
            "text/plain", "text/plain;charset=utf-8"}));
}

TEST_F(X11PasteboardOffer, hasTheFilesThatWereWritten)
{
    pasteboard->write(PasteboardContent::Files{{"/a b", "/c"}});
    EXPECT_TRUE(
        eventually([&] { return read("text/uri-list") == "file:///a%20b\r\nfile:///c\r\n"; }));
    EXPECT_EQ(read("x-special/gnome-copied-files"), "copy\nfile:///a%20b\nfile:///c");
    EXPECT_EQ(read("UTF8_STRING"), "/a b\n/c");
}

TEST_F(X11PasteboardOffer, hasWhatIsTooLargeForOneMessage)
{
    makePasteboard({});
    std::string bytes;
    while (bytes.size() < 5'000'000)
        bytes += std::to_string(bytes.size()) + '\0';
    pasteboard->write(PasteboardContent::Data{"public.png", bytes});
    EXPECT_TRUE(eventually([&] { return targets().size() == 5; }));
    EXPECT_TRUE(read("image/png") == bytes);
}

TEST_F(X11PasteboardOffer, hasNoOwnerOnceNothingWasWritten)
{
    pasteboard->write(PasteboardContent::Text{"text"});
    ASSERT_TRUE(eventually([&] { return clipboardOwner() != XCB_WINDOW_NONE; }));
    pasteboard->write(PasteboardContent::Nothing{});
    EXPECT_TRUE(eventually([&] { return clipboardOwner() == XCB_WINDOW_NONE; }));
}

TEST_F(X11PasteboardOffer, givesSeveralTargetsAtOnce)
{
    pasteboard->write(PasteboardContent::Text{"café"});
    ASSERT_TRUE(eventually([&] { return read("UTF8_STRING") == "café"; }));
    const auto requestor = window();
    const std::vector<xcb_atom_t> pairs{server.atom("UTF8_STRING"), server.atom("ONE"),
        server.atom("image/png"), server.atom("TWO"), server.atom("STRING"), server.atom("THREE"),
        server.atom("MULTIPLE"), server.atom("FOUR")};
    xcb_change_property(server.get(), XCB_PROP_MODE_REPLACE, requestor, server.atom("PAIRS"),
        server.atom("ATOM_PAIR"), 32, static_cast<std::uint32_t>(pairs.size()), pairs.data());
    request(requestor, "MULTIPLE", "PAIRS");
    auto answered = pairs;
    answered[3] = answered[7] = XCB_ATOM_NONE;
    EXPECT_TRUE(eventually([&] { return server.values(requestor, "PAIRS") == answered; }));
    EXPECT_EQ(server.text(requestor, "ONE"), "café");
    EXPECT_EQ(server.text(requestor, "THREE"), "caf\xE9");
}

TEST_F(X11PasteboardOffer, saysSinceWhenItIsThere)
{
    pasteboard->write(PasteboardContent::Text{"text"});
    const auto requestor = window();
    EXPECT_TRUE(eventually([&] {
        request(requestor, "TIMESTAMP", "TIME");
        const auto times = server.values(requestor, "TIME");
        return times.size() == 1 && times[0] != XCB_CURRENT_TIME;
    }));
}

TEST_F(X11PasteboardOffer, isNotHeldUpByApplicationsThatTakeNoPieces)
{
    const std::string large(1'000'000, 'x');
    pasteboard->write(PasteboardContent::Text{large});
    ASSERT_TRUE(eventually([&] { return clipboardOwner() != XCB_WINDOW_NONE; }));
    // More than it sends to at once; they are given up one after the other.
    const auto requestor = window();
    for (int index = 0; index < 100; ++index)
        request(requestor, "UTF8_STRING", "PROPERTY_" + std::to_string(index));
    ASSERT_TRUE(eventually(
        [&] { return server.values(requestor, "PROPERTY_0") == std::vector{1'000'000U}; }));
    EXPECT_TRUE(eventually([&] { return read("UTF8_STRING") == large; }));

    const auto leaving = window();
    request(leaving, "UTF8_STRING", "PROPERTY");
    xcb_destroy_window(server.get(), leaving);
    server.sync();
    EXPECT_EQ(read("UTF8_STRING"), large);
}

TEST_F(X11PasteboardOffer, keepsWhatWasCopiedWhenItsApplicationEnds)
{
    for (const auto& [target, bytes] : {std::pair<std::string, std::string>{"UTF8_STRING", "text"},
             {"text/uri-list", "file:///a%20b\r\n"}, {"image/png", std::string("PNG\0\xFF", 5)}}) {
        copy({{target, bytes}});
        const auto count = pasteboard->changeCount();
        owner.reset();
        EXPECT_TRUE(eventually([&] { return read(target) == bytes; })) << target;
        EXPECT_EQ(pasteboard->changeCount(), count) << "nothing has changed";
    }
}

TEST_F(X11PasteboardOffer, doesNotKeepASecret)
{
    copy({{"UTF8_STRING", "password"}, {"x-kde-passwordManagerHint", "secret"}});
    const auto count = pasteboard->changeCount();
    owner.reset();
    EXPECT_TRUE(loop.runUntil([&] { return pasteboard->changeCount() > count; }));
    EXPECT_EQ(clipboardOwner(), xcb_window_t{XCB_WINDOW_NONE});
}

TEST_F(X11PasteboardOffer, doesNotKeepWhatItsApplicationHasCleared)
{
    copy({{"UTF8_STRING", "text"}});
    const auto count = pasteboard->changeCount();
    owner->clear();
    EXPECT_TRUE(loop.runUntil([&] { return pasteboard->changeCount() > count; }));
    EXPECT_EQ(clipboardOwner(), xcb_window_t{XCB_WINDOW_NONE});
    EXPECT_EQ(pasteboard->text(), std::nullopt);
}

TEST_F(X11PasteboardOffer, doesNotKeepWhatIsCopiedWhileNobodyObserves)
{
    copy({{"UTF8_STRING", "text"}});
    observed.reset();
    const auto count = pasteboard->changeCount();
    owner.reset();
    EXPECT_TRUE(loop.runUntil([&] { return pasteboard->changeCount() > count; }));
    EXPECT_EQ(clipboardOwner(), xcb_window_t{XCB_WINDOW_NONE});
}

TEST_F(X11PasteboardOffer, neverTakesTheClipboardFromWhoHasCopiedSince)
{
    for (int turn = 0; turn < 50; ++turn) {
        copy({{"UTF8_STRING", "before"}});
        const auto text = "copied " + std::to_string(turn);
        owner.reset();
        const SelectionOwner next(text);
        ASSERT_TRUE(loop.runUntil([&] { return pasteboard->text() == text; })) << turn;
        ASSERT_EQ(read("UTF8_STRING"), text);
    }
}

struct X11PasteboardMouse : X11PasteboardOffer {
    void share()
    {
        bool isShared = false;
        pasteboard->shareWithMouse([&] { isShared = true; });
        EXPECT_TRUE(loop.runUntil([&] { return isShared; }));
    }
};

TEST_F(X11PasteboardMouse, hasNothingThatWasOnlyWritten)
{
    pasteboard->write(PasteboardContent::Text{"text"});
    ASSERT_TRUE(eventually([&] { return read("UTF8_STRING") == "text"; }));
    EXPECT_EQ(primarySelection(server), "nothing");
}

TEST_F(X11PasteboardMouse, hasWhatIsSharedAtOnce)
{
    pasteboard->write(PasteboardContent::Text{"text"});
    share();
    EXPECT_EQ(primarySelection(server), "text");
}

TEST_F(X11PasteboardMouse, hasNothingOnceAnotherApplicationHasCopied)
{
    pasteboard->write(PasteboardContent::Text{"text"});
    share();
    copy({{"UTF8_STRING", "other"}});
    EXPECT_TRUE(eventually([&] { return primarySelection(server) == "nothing"; }));
    share();
    EXPECT_EQ(primarySelection(server), "nothing");
}

TEST_F(X11PasteboardMouse, leavesASelectionThatCameLaterWhereItIs)
{
    pasteboard->write(PasteboardContent::Text{"text"});
    share();
    const SelectionOwner selected({.contents = {{"STRING", "selected"}}, .selection = "PRIMARY"});
    copy({{"UTF8_STRING", "other"}});
    EXPECT_EQ(primarySelection(server), "selected");
}

TEST_F(X11PasteboardOffer, isHandedToTheClipboardManagerAtTheEnd)
{
    const SelectionOwner manager(
        {.contents = {{"SAVE_TARGETS", ""}}, .selection = "CLIPBOARD_MANAGER"});
    pasteboard->write(PasteboardContent::Text{"text"});
    ASSERT_TRUE(eventually([&] { return read("UTF8_STRING") == "text"; }));
    observed.reset();
    pasteboard.reset();
    EXPECT_EQ(manager.requested(), Texts{"SAVE_TARGETS"});
}

TEST_F(X11PasteboardOffer, isLetGoWhereTheClipboardManagerIsSilent)
{
    const SelectionOwner manager({.contents = {{"SAVE_TARGETS", ""}},
        .manners = Manners::silent,
        .selection = "CLIPBOARD_MANAGER"});
    makePasteboard({.silence = std::chrono::hours(1), .handover = std::chrono::milliseconds(200)});
    pasteboard->write(PasteboardContent::Text{"text"});
    ASSERT_TRUE(eventually([&] { return read("UTF8_STRING") == "text"; }));
    observed.reset();
    pasteboard.reset();
    EXPECT_EQ(manager.requested(), Texts{"SAVE_TARGETS"});
    EXPECT_TRUE(eventually([&] { return clipboardOwner() == XCB_WINDOW_NONE; }));
}

TEST_F(X11PasteboardOffer, isNotHandedOverWhereItIsAnothers)
{
    const SelectionOwner manager(
        {.contents = {{"SAVE_TARGETS", ""}}, .selection = "CLIPBOARD_MANAGER"});
    copy({{"UTF8_STRING", "text"}});
    observed.reset();
    pasteboard.reset();
    EXPECT_EQ(manager.requested(), Texts{});
}

} // namespace
} // namespace brindlex
