#pragma once

#include "platform/ActivationPolicy.h"
#include "platform/linux/x11/X11Connection.h"

#include <QWindow>

#include <array>
#include <memory>

namespace brindlex {

/// The policy as a state of each window by the rules of window managers (EWMH): an accessory
/// skips task bar and pager. What the window manager does not look after is left alone.
///
/// A window that opens has the state before it is seen, so that it never flashes in a task bar.
/// Made after the application object. Main thread only.
class X11ActivationPolicy : public ActivationPolicySetting {
public:
    explicit X11ActivationPolicy(X11Connection& connection);
    ~X11ActivationPolicy() override;
    X11ActivationPolicy(const X11ActivationPolicy&) = delete;
    X11ActivationPolicy& operator=(const X11ActivationPolicy&) = delete;

    ActivationPolicy activationPolicy() const override { return policy_; }
    void setActivationPolicy(ActivationPolicy policy) override;

private:
    class OpeningWindows;

    void prepare(QWindow& window) const;
    void change(QWindow& window) const;

    const xcb_window_t root_;
    const xcb_atom_t state_;
    const std::array<xcb_atom_t, 2> skipping_;
    ActivationPolicy policy_ = ActivationPolicy::regular;
    std::unique_ptr<OpeningWindows> openingWindows_;
};

} // namespace brindlex
