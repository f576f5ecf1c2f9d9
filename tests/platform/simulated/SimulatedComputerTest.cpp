#include "platform/simulated/SimulatedComputer.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace brindlex {
namespace {

using Entries = std::vector<std::string>;

TEST(SimulatedComputer, offersEachAbilityUnderItsName)
{
    SimulatedComputer computer;
    const auto& platform = computer.platform();

    EXPECT_EQ(&platform.mainThread, &computer.mainThread);
    EXPECT_EQ(&platform.clock, &computer.clock);
    EXPECT_EQ(&platform.defaults, &computer.defaults);
    EXPECT_EQ(&platform.userFolders, &computer.userFolders);
    EXPECT_EQ(&platform.container, &computer.container);
    EXPECT_EQ(&platform.distributedNotifications, &computer.distributedNotifications);
    EXPECT_EQ(&platform.instances, &computer.instances);
    EXPECT_EQ(&platform.applications, &computer.applications);
    EXPECT_EQ(&platform.bundles, &computer.bundles);
    EXPECT_EQ(&platform.inputSources, &computer.inputSources);
    EXPECT_EQ(&platform.browserPages, &computer.browserPages);
    EXPECT_EQ(&platform.overlayPanel, &computer.overlayPanel);
    EXPECT_EQ(&platform.activation, &computer.activation);
    EXPECT_EQ(&platform.activationPolicy, &computer.activationPolicy);
    EXPECT_EQ(&platform.programWindows, &computer.programWindows);
    EXPECT_EQ(&platform.statusItem, &computer.statusItem);
    EXPECT_EQ(&platform.eventPermissions, &computer.eventPermissions);
    EXPECT_EQ(&platform.eventTapping, &computer.input);
    EXPECT_EQ(&platform.eventPosting, &computer.input);
    EXPECT_EQ(&platform.displayLink, &computer.displayLink);
    EXPECT_EQ(&platform.cursor, &computer.cursor);
    EXPECT_EQ(&platform.accessibility, &computer.accessibility);
    EXPECT_EQ(&platform.windows, &computer.windows);
    EXPECT_EQ(&platform.processes, &computer.processes);
    EXPECT_EQ(&platform.opening, &computer.opening);
}

TEST(SimulatedComputer, canHaveTheInputOfAnother)
{
    SimulatedComputer computer;
    SimulatedInput input;
    SimulatedInput posted;

    const auto platform = computer.platformWithInput(input, posted);

    EXPECT_EQ(&platform.eventTapping, &input);
    EXPECT_EQ(&platform.eventPosting, &posted);
    EXPECT_EQ(&platform.mainThread, &computer.mainThread);
}

TEST(SimulatedComputer, isAProcessAmongThoseOfItsSession)
{
    const auto services = std::make_shared<SimulatedSessionServices>();
    SimulatedComputer first({.services = services, .bundleID = "one"});
    SimulatedComputer second({.services = services, .bundleID = "one"});
    SimulatedComputer alone({.bundleID = "one"});

    EXPECT_EQ(second.instances.running("one"),
        (std::vector{first.instances.current(), second.instances.current()}));
    EXPECT_EQ(alone.instances.running("one"), std::vector{alone.instances.current()});
}

/// One line for each ability that has commands or observations, in the order of `Platform`.
TEST(SimulatedComputer, hasInOneJournalWhatIsAskedOfAllAbilities)
{
    SimulatedJournal journal;
    SimulatedComputer computer({.journal = &journal});
    auto& platform = computer.platform();
    const auto nothing = [](const auto&...) {};

    platform.defaults.set("key", PreferenceValue(true));
    platform.defaults.set("key", std::nullopt);
    platform.defaults.synchronize();
    const auto preferences = platform.defaults.observeChanges(nothing);
    platform.container.appGroupContainerURL();
    platform.distributedNotifications.post("name", "object");
    const auto names = platform.distributedNotifications.observe("name", "object", nothing);
    platform.instances.running("one");
    platform.instances.activate(ProcessIdentity{7});
    platform.instances.terminate();
    const auto activations
        = platform.applications.observeActivation([](const std::optional<RunningApplication>&) {});
    platform.inputSources.select(SimulatedInputSources::keyboard("us", "U.S."));
    const auto selection = platform.inputSources.observeSelectionChanges(nothing);
    const auto sources = platform.inputSources.observeEnabledSourcesChanges(nothing);
    const auto pages = platform.browserPages.observeChanges(nothing);
    platform.overlayPanel.show("text");
    platform.overlayPanel.fadeOut();
    platform.statusItem.show({});
    const auto clicks = platform.statusItem.observeActivation(nothing);
    const auto choices = platform.statusItem.observeChoice(nothing);
    platform.statusItem.hide();
    const auto active = platform.activation.observeDidBecomeActive(nothing);
    const auto permissions = platform.eventPermissions.observeAccessibilityChanges(nothing);
    const auto frames = platform.displayLink.onEachFrame({}, [](Seconds) {});
    platform.processes.launch("/bin/true", {}, [](const std::string&) {});
    platform.opening.open("/apps/mail.desktop");

    EXPECT_EQ(journal.entries(),
        (Entries{"set key", "remove key", "synchronize", "observe preferences", "container",
            "post name object", "observe name object", "list one", "activate 7", "terminate",
            "observe activations", "select us", "observe selection", "observe enabled sources",
            "observe pages", "show text", "fadeOut", "show icon", "observe clicks on the icon",
            "observe choices at the icon", "hide icon", "observe becoming active",
            "observe permissions", "observe frames", "launch /bin/true",
            "open /apps/mail.desktop"}));
}

TEST(SimulatedComputer, hasInItsJournalTheLifeOfATap)
{
    SimulatedJournal journal;
    SimulatedComputer computer({.journal = &journal});

    auto tap = computer.platform().eventTapping.createTap(
        0x400, {}, [](const Event&) { return EventVerdict::pass; });
    tap->setEnabled(true);
    tap->setInterests({});
    computer.platform().eventPosting.post({.type = EventType::keyDown});
    computer.input.switchTapsOff(EventType::tapDisabledByTimeout);
    tap->setEnabled(false);
    tap.reset();

    EXPECT_EQ(journal.entries(),
        (Entries{"tap 0x400", "tap on", "tap interests", "post event 10", "tap off", "tap ends"}))
        << "and nothing of what the system does of itself";
}

} // namespace
} // namespace brindlex
