#pragma once

#include "foundation/Observable.h"
#include "foundation/Subscription.h"
#include "ui/theme/ThemeTokens.h"

#include <QColor>
#include <QFont>

#include <functional>

class QWidget;

namespace brindlex {

/// One of the colours of a theme.
using Token = Colour ThemeTokens::*;

/// How large words are, as parts of the desktop's font size.
namespace textScale {

inline constexpr double second = 0.9;
inline constexpr double heading = 1.05;
inline constexpr double title = 1.5;
inline constexpr double fixedWidth = 0.85;

} // namespace textScale

/// How all controls look at the moment. Controls paint with what it says when they are painted; it
/// outlives them. Main thread only.
class Theme {
public:
    /// Everything that may change while windows are open.
    struct Look {
        ThemeTokens tokens = themeTokens(Brightness::light);
        /// Whether nothing is to move by itself.
        bool reducesMotion = false;

        bool operator==(const Look&) const = default;
    };

    Theme() : Theme(Look{}) { }
    explicit Theme(const Look& look) : look_(look) { }

    const ThemeTokens& tokens() const { return look_.value().tokens; }
    bool reducesMotion() const { return look_.value().reducesMotion; }
    QColor colour(Token token) const;

    /// Dresses the window and all that is in it, now and whenever the look or the font of the
    /// program changes; until the end of the window.
    void dress(QWidget& window) const;

    void setLook(const Look& look) { look_.set(look); }

private:
    Observable<Look> look_;
};

/// A font of another size.
QFont scaledFont(QFont font, double scale);

/// The same with digits of one width and letters, too.
QFont fixedWidthFont(const QFont& font);

} // namespace brindlex
