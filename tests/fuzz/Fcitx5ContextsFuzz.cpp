#include "fuzz/FuzzTarget.h"

#include "platform/linux/inputsources/Fcitx5Contexts.h"

using namespace brindlex;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size)
{
    const auto text
        = QString::fromUtf8(reinterpret_cast<const char*>(bytes), static_cast<qsizetype>(size));
    const auto context = fcitx5FocusedContext(text);
    require(text.contains(context), "a context is one of those named");
    require(!context.contains(u']') && !context.contains(u'\n'), "and a part of one line");
    if (context.isEmpty())
        return 0;
    const auto written = QStringLiteral("Group [x11::0]\n  IC [%1] program:xterm focus:1\n");
    require(fcitx5FocusedContext(written.arg(context)) == context, "it is read as written");
    return 0;
}
