#pragma once

#include "platform/ImageConverting.h"
#include "platform/PasteboardState.h"

#include <optional>
#include <string>
#include <vector>

namespace brindlex {

/// Decides which targets of what an application offers are requested, one after the other, and what
/// is made of them: as little as is recorded.
///
///     hint ──secret, or refused──▶ complete, with nothing but the mark
///       │ none
///       ▼
///     files ──some──▶ complete
///       │ none
///       ▼
///     pictures ──PNG, else TIFF and JPEG, else another──▶ complete
///       │ none offered
///       ▼
///     texts ──one──▶ complete
///
/// An offer with a mark of its own for what is not to be remembered is complete at once.
class PasteboardFetch {
public:
    /// `images` outlives the fetch; it makes PNG of pictures in forms that only X11 knows.
    PasteboardFetch(std::vector<std::string> targets, ImageConverting& images);

    /// The target to be requested next; nothing once the state is complete.
    std::optional<std::string> target() const;

    /// Takes the bytes of the target that was to be requested; nothing when it was refused.
    void receive(std::optional<std::string> bytes);

    /// What is known so far.
    PasteboardState& state() { return state_; }

private:
    enum class Stage { hint, files, pictures, texts, complete };

    void enter(Stage stage);
    void goOn();
    void takeHint(const std::optional<std::string>& bytes);
    void takeFiles(const std::optional<std::string>& bytes);
    void takePicture(const std::string& target, std::optional<std::string> bytes);
    void takeText(const std::string& target, const std::optional<std::string>& bytes);

    std::vector<std::string> targets_;
    ImageConverting& images_;
    PasteboardState state_;
    Stage stage_ = Stage::hint;
    /// What the stage has still to request, the next in front.
    std::vector<std::string> waiting_;
};

} // namespace brindlex
