#pragma once

namespace brindlex {

/// Has the application that the user types into paste. Main thread only.
class Pasting {
public:
    virtual ~Pasting() = default;

    /// Types the keystroke by which the application pastes what is on the pasteboard; nothing
    /// happens without the permission to post events. The events carry `pasteEventTag`, by which
    /// the program's tap knows them again.
    virtual void postPaste() = 0;
};

} // namespace brindlex
