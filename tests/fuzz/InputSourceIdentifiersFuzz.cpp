#include "fuzz/FuzzTarget.h"

#include "platform/InputSourceIdentifiers.h"

using namespace brindlex;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size)
{
    const auto text = textOf(bytes, size);
    const auto canonical = canonicalSourceID(text);
    require(canonicalSourceID(canonical) == canonical, "there is one canonical form");
    require(layoutOfSource(canonical) == layoutOfSource(text), "it names the same layout");

    const auto engine = sourceIDOfIBusEngine(text);
    require(canonicalSourceID(engine) == engine, "the form of an IBus engine is canonical");
    require(engine.starts_with("ibus:") || layoutOfSource(engine), "it is one of two kinds");

    const auto keyboard = layoutOfFcitxKeyboard(text);
    const auto method = sourceIDOfFcitx(text, "deu");
    require(keyboard.has_value() == method.starts_with("xkb:"), "a keyboard is a layout");
    return 0;
}
