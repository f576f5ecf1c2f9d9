#pragma once

#include <xcb/xinput.h>

namespace brindlex {

/// The input extension's numbers with a fraction, as numbers.
inline double number(xcb_input_fp3232_t value)
{
    return value.integral + value.frac / 4294967296.0;
}
inline double number(xcb_input_fp1616_t value) { return value / 65536.0; }

} // namespace brindlex
