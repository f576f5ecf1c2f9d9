#pragma once

#include "foundation/Result.h"
#include "log/Log.h"
#include "platform/linux/accessibility/AccessibilityLimits.h"

#include <QDBusConnection>
#include <QString>
#include <QVariantList>
#include <chrono>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace brindlex {

/// An object in the accessible tree of some program.
struct AccessibleObject {
    QString service{};
    QString path{};

    bool operator==(const AccessibleObject&) const = default;

    /// Whether it stands for "there is none".
    bool isNull() const;
};

/// Why a question on the accessibility bus has no result.
enum class AccessibilityProblem {
    /// The time was up first: the program is busy, and may reply later.
    noReply,
    /// The program or the object is gone, or what came was not a valid reply.
    refused,
};

template <typename Value>
using AccessibilityResult = Result<Value, AccessibilityProblem>;

/// Questions to the accessible trees of other programs.
///
/// Programs on the bus are not trusted: questions wait no longer than the limits, and of a list
/// only the first entries are read. Never starts a service:
/// a session without the accessibility bus is left as it is, which is logged once. Connects again
/// after the bus was restarted. To be used from one worker thread only, as every question blocks.
class AccessibilityBus {
public:
    static constexpr std::size_t mostListEntries = 256;

    /// What the user is without when the bus does not help, in the words of the log.
    struct Loss {
        const char* withoutBus = "the pages of browsers are unknown";
        const char* whileOff = "the pages of browsers started meanwhile are unknown";
        std::string_view category = logCategory::inputMethod;
    };

    AccessibilityBus(const AccessibilityLimits& limits, const Loss& loss);
    explicit AccessibilityBus(const AccessibilityLimits& limits = {})
        : AccessibilityBus(limits, Loss{})
    {
    }
    ~AccessibilityBus();
    AccessibilityBus(const AccessibilityBus&) = delete;
    AccessibilityBus& operator=(const AccessibilityBus&) = delete;

    /// Begins a reading: connects where needed, and the time starts, that of the limits unless
    /// another is given. False when there is no bus.
    bool begin(std::optional<std::chrono::milliseconds> time = std::nullopt);

    /// The programs on the bus.
    AccessibilityResult<std::vector<AccessibleObject>> applications();

    /// The process behind a bus name, as the bus itself knows it.
    AccessibilityResult<std::int64_t> processIdentifier(const QString& service);

    AccessibilityResult<std::vector<AccessibleObject>> children(const AccessibleObject& object);

    AccessibilityResult<QString> name(const AccessibleObject& object);

    /// Whether the window has the state ACTIVE.
    AccessibilityResult<bool> isActive(const AccessibleObject& object);

    /// What the object says it embeds, such as a browser window its current page.
    AccessibilityResult<std::vector<AccessibleObject>> embedded(const AccessibleObject& object);

    /// The first document of a web page below the object that is on the screen, if there is one.
    /// The program looks through its tree for it, up to that document.
    AccessibilityResult<std::vector<AccessibleObject>> showingDocument(
        const AccessibleObject& object);

    /// An attribute of a document; empty when the document does not have it.
    AccessibilityResult<QString> documentAttribute(
        const AccessibleObject& document, const QString& attribute);

    /// The first value of the reply to any question; see `AccessibilityReply` for taking it apart.
    AccessibilityResult<QVariant> ask(const AccessibleObject& object, const QString& interface,
        const QString& member, const QVariantList& arguments = {});

private:
    bool connect();
    std::optional<QString> address();
    /// What a question returns whose reply is a list of references.
    AccessibilityResult<std::vector<AccessibleObject>> askForObjects(const AccessibleObject& object,
        const QString& interface, const QString& member, const QVariantList& arguments = {});
    void logOnce(bool& isLogged, const std::string& message) const;

    const AccessibilityLimits limits_;
    const Loss loss_;
    const QString connectionName_;
    const QString sessionConnectionName_;
    QDBusConnection connection_;
    std::chrono::steady_clock::time_point deadline_{};
    bool isAbsenceLogged_ = false;
    bool isDisabledLogged_ = false;
};

} // namespace brindlex
