#pragma once

#include "platform/DockSwipe.h"
#include "platform/EventPosting.h"
#include "platform/linux/input/PostedPresses.h"
#include "platform/linux/input/WheelTicks.h"
#include "platform/linux/input/X11ExactModifiers.h"
#include "platform/linux/input/X11InputStream.h"

namespace brindlex {

/// Posting on X11: the program's own taps first, then the applications by XTEST.
///
/// A scroll becomes notches of the wheel (see `WheelTicks`), a swipe between spaces a change of the
/// desktop, and a few keystrokes what applications here expect for them (see `SystemKeystroke`).
class X11EventPosting : public EventPosting {
public:
    X11EventPosting(X11InputStream& stream, MainThread& mainThread, const Clock& clock)
        : stream_(stream), mainThread_(mainThread), clock_(clock)
    {
    }

    bool post(const SyntheticEvent& event) override;
    void announceScroll(std::uint64_t flags, ScrollDistance distance) override;
    void finishScroll() override;

private:
    void deliver(const SyntheticEvent& event);
    void forgetEarlierSession();
    bool goesOn(const SyntheticEvent& event, bool passes);
    void play(X11TapSession& session, const SyntheticEvent& event);
    void playButton(X11TapSession& session, const SyntheticEvent& event);
    static void playButton(X11TapSession& session, std::int64_t number, bool isPress);
    static void turnWheel(X11TapSession& session, std::uint8_t direction, int notches);
    void playKey(X11TapSession& session, const SyntheticEvent& event);
    void playScroll(X11TapSession& session, const SyntheticEvent& event);
    void turnAnnounced(int up, int left);
    void turnWheel(X11TapSession& session, const SyntheticEvent& event, int up, int left);
    void moveTo(X11TapSession& session, const SyntheticEvent& event);
    void holdExactly(X11TapSession& session, const SyntheticEvent& event);
    void restoreSoon();

    X11InputStream& stream_;
    MainThread& mainThread_;
    const Clock& clock_;
    PostedPresses presses_;
    X11ExactModifiers modifiers_;
    /// The connection through which presses and modifiers are held.
    int sessionNumber_ = 0;
    WheelTicks vertical_;
    WheelTicks horizontal_;
    /// Those with which the scroll was announced.
    std::uint64_t scrollFlags_ = 0;
    DockSwipeReader dock_;
    Subscription nextRestore_;
};

} // namespace brindlex
