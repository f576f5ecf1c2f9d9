#include "fuzz/FuzzTarget.h"

#include "platform/linux/appearance/GtkAppearance.h"
#include "platform/linux/appearance/KdeAppearance.h"

using namespace brindlex;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size)
{
    const auto text = textOf(bytes, size);
    const auto kde = kdeAppearance(text);
    require(kde.accent.value_or(0) <= 0xffffff, "a colour has three parts");
    require(!kde.textScale, "the text has no scale of its own");
    const auto gtk = gtkFileAppearance(text);
    require(!gtk.accent && !gtk.textScale, "neither has GTK's, nor an accent");
    return 0;
}
