#pragma once

#include "support/screen/XConnection.h"

#include <atomic>
#include <cstdint>
#include <map>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

namespace brindlex {

/// An application that has copied: owns the clipboard, or another selection, with a connection and
/// a thread of its own, and sends what is requested, well or badly. Its end is that of an
/// application.
class SelectionOwner {
public:
    /// How it behaves to those who request something.
    enum class Manners {
        good,
        /// Sends nothing at all.
        silent,
        /// Says what it has, and sends nothing of it.
        silentAfterTargets,
        /// Sends the first piece, and no other.
        silentInPieces,
        /// Sends pieces without an end.
        endless,
        /// Announces four GB less one byte.
        boastful,
        /// Refuses all but the list of what it has.
        refusing,
        /// Lists what nobody knows, too.
        confused,
    };

    struct Offer {
        /// By target.
        std::map<std::string, std::string> contents{};
        Manners manners = Manners::good;
        /// What is larger is sent in pieces of this size.
        std::size_t piece = 100'000;
        std::string selection = "CLIPBOARD";
    };

    /// Returns when it owns the clipboard.
    explicit SelectionOwner(Offer offer);
    explicit SelectionOwner(const std::string& text)
        : SelectionOwner(Offer{.contents = {{"UTF8_STRING", text}}})
    {
    }
    ~SelectionOwner();
    SelectionOwner(const SelectionOwner&) = delete;
    SelectionOwner& operator=(const SelectionOwner&) = delete;

    /// Gives the clipboard up, as an application does that clears it.
    void clear();

    /// Owns the clipboard once more.
    void copyAgain();

    /// The targets that were requested so far, in order.
    std::vector<std::string> requested() const;

    /// How many pieces it has sent.
    int sentPieces() const { return sentPieces_; }

private:
    void run();
    void receive(const xcb_generic_event_t& event);
    bool give(const xcb_selection_request_event_t& request);
    bool isSilent(const std::string& target) const;
    void beginPieces(const xcb_selection_request_event_t& request, const std::string& bytes);
    void sendPiece(xcb_window_t window, xcb_atom_t property);
    std::string nameOf(xcb_atom_t atom) const;
    void own(xcb_window_t window);

    const Offer offer_;
    XConnection server_;
    const xcb_window_t window_;
    const int wake_;
    std::atomic<bool> isEnding_ = false;
    std::atomic<int> sentPieces_ = 0;
    mutable std::mutex mutex_;
    std::vector<std::string> requested_;
    /// What is still to be sent of the one content that is sent in pieces.
    std::string waiting_;
    xcb_atom_t waitingType_ = XCB_ATOM_NONE;
    xcb_window_t recipient_ = XCB_WINDOW_NONE;
    std::thread thread_;
};

} // namespace brindlex
