#include "ui/controls/Glyph.h"

#include <QBuffer>
#include <QIconEngine>
#include <QImageReader>
#include <QPainter>
#include <QPixmapCache>

namespace brindlex {
namespace {

/// The shapes in a square of 24.
const char* shapesOf(Glyph glyph)
{
    switch (glyph) {
    case Glyph::none:
        return "";
    case Glyph::about:
        return "<circle cx='12' cy='12' r='9'/><path d='M12 11v5M12 8h.01'/>";
    case Glyph::add:
        return "<path d='M12 5v14M5 12h14'/>";
    case Glyph::application:
        return "<rect x='4' y='4' width='16' height='16' rx='4'/><path d='M4 9h16'/>";
    case Glyph::arrow:
        return "<path d='M5 12h14M13 6l6 6-6 6'/>";
    case Glyph::chevronDown:
        return "<path d='m6 9 6 6 6-6'/>";
    case Glyph::clipboard:
        return "<rect x='6' y='4' width='12' height='17' rx='2'/>"
               "<path d='M9.5 4h5v3h-5zM9 12h6M9 16h4'/>";
    case Glyph::cross:
        return "<path d='m7 7 10 10M17 7 7 17'/>";
    case Glyph::dictation:
        return "<rect x='9' y='3' width='6' height='11' rx='3'/>"
               "<path d='M6 11a6 6 0 0 0 12 0M12 17v4'/>";
    case Glyph::file:
        return "<path d='M6 4a1 1 0 0 1 1-1h7l5 5v12a1 1 0 0 1-1 1H7a1 1 0 0 1-1-1zM14 3v5h5'/>";
    case Glyph::files:
        return "<path d='M3 18V7a2 2 0 0 1 2-2h4l2 2h8a2 2 0 0 1 2 2v9a2 2 0 0 1-2 2H5"
               "a2 2 0 0 1-2-2z'/>";
    case Glyph::follow:
        return "<path d='M12 4v12M6 11l6 6 6-6M5 21h14'/>";
    case Glyph::gear:
        return "<circle cx='12' cy='12' r='3'/><path d='M12 3v4M12 17v4M3 12h4M17 12h4"
               "M5.6 5.6l2.9 2.9M15.5 15.5l2.9 2.9M5.6 18.4l2.9-2.9M15.5 8.5l2.9-2.9'/>";
    case Glyph::general:
        return "<path d='M4 8h9M17 8h3M4 16h3M11 16h9'/><circle cx='15' cy='8' r='2'/>"
               "<circle cx='9' cy='16' r='2'/>";
    case Glyph::globe:
        return "<circle cx='12' cy='12' r='9'/>"
               "<path d='M3 12h18M12 3c5 6 5 12 0 18-5-6-5-12 0-18'/>";
    case Glyph::keyboard:
        return "<rect x='3' y='6' width='18' height='12' rx='2'/>"
               "<path d='M7 10h.01M10.3 10h.01M13.7 10h.01M17 10h.01M8 14h8'/>";
    case Glyph::mouse:
        return "<rect x='7' y='3' width='10' height='18' rx='5'/><path d='M12 7v3'/>";
    case Glyph::person:
        return "<circle cx='12' cy='6' r='2'/>"
               "<path d='M5 10c4 1.5 10 1.5 14 0M12 11v4l-3 6M12 15l3 6'/>";
    case Glyph::picture:
        return "<rect x='3' y='5' width='18' height='14' rx='2'/><circle cx='8.5' cy='10' r='1.5'/>"
               "<path d='m5 17 5-4 3 2 4-4 4 4'/>";
    case Glyph::reload:
        return "<path d='M20 12a8 8 0 1 1-2.5-5.8M20 3v5h-5'/>";
    case Glyph::search:
        return "<circle cx='11' cy='11' r='6'/><path d='m20 20-4.5-4.5'/>";
    case Glyph::target:
        return "<circle cx='12' cy='12' r='6'/><path d='M12 2v6M12 16v6M2 12h6M16 12h6'/>";
    case Glyph::text:
        return "<path d='M5 7h14M5 12h14M5 17h8'/>";
    case Glyph::trash:
        return "<path d='M5 7h14M9 7V4h6v3M7 7l1 13h8l1-13'/>";
    case Glyph::warning:
        return "<path d='M12 4 3 20h18zM12 10v4M12 17h.01'/>";
    }
    return "";
}

QByteArray svgOf(Glyph glyph, const QColor& colour)
{
    return "<svg xmlns='http://www.w3.org/2000/svg' viewBox='0 0 24 24' width='24' height='24' "
           "fill='none' stroke-width='1.8' stroke-linecap='round' stroke-linejoin='round' stroke='"
        + colour.name().toLatin1() + "'>" + shapesOf(glyph) + "</svg>";
}

QPixmap drawn(Glyph glyph, const QColor& colour, int pixels)
{
    QByteArray text = svgOf(glyph, colour);
    QBuffer buffer(&text);
    QImageReader reader(&buffer, "svg");
    reader.setScaledSize({pixels, pixels});
    return QPixmap::fromImageReader(&reader);
}

/// Asks the theme for the colour each time that it is painted.
class GlyphIconEngine : public QIconEngine {
public:
    GlyphIconEngine(const Theme& theme, Glyph glyph, Token ink, Token inkWhenOn)
        : theme_(theme), glyph_(glyph), ink_(ink), inkWhenOn_(inkWhenOn)
    {
    }

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode, QIcon::State state) override
    {
        const auto ratio = painter->device()->devicePixelRatio();
        painter->drawPixmap(rect, at(rect.width(), ratio, state));
    }
    QPixmap scaledPixmap(const QSize& size, QIcon::Mode, QIcon::State state, qreal scale) override
    {
        return at(qRound(size.width() / scale), scale, state);
    }
    QPixmap pixmap(const QSize& size, QIcon::Mode, QIcon::State state) override
    {
        return at(size.width(), 1, state);
    }
    QIconEngine* clone() const override { return new GlyphIconEngine(*this); }

private:
    QPixmap at(int size, double ratio, QIcon::State state) const
    {
        return glyphPixmap(
            glyph_, theme_.colour(state == QIcon::On ? inkWhenOn_ : ink_), size, ratio);
    }

    const Theme& theme_;
    const Glyph glyph_;
    const Token ink_;
    const Token inkWhenOn_;
};

} // namespace

QPixmap glyphPixmap(Glyph glyph, const QColor& colour, int size, double ratio)
{
    const int pixels = qRound(size * ratio);
    const auto key = QStringLiteral("glyph %1 %2 %3")
                         .arg(static_cast<int>(glyph))
                         .arg(colour.name())
                         .arg(pixels);
    QPixmap pixmap;
    if (!QPixmapCache::find(key, &pixmap)) {
        pixmap = drawn(glyph, colour, pixels);
        QPixmapCache::insert(key, pixmap);
    }
    pixmap.setDevicePixelRatio(ratio);
    return pixmap;
}

QIcon glyphIcon(const Theme& theme, Glyph glyph, Token ink, Token inkWhenOn)
{
    return QIcon(new GlyphIconEngine(theme, glyph, ink, inkWhenOn));
}

QIcon glyphIcon(const Theme& theme, Glyph glyph, Token ink)
{
    return glyphIcon(theme, glyph, ink, ink);
}

} // namespace brindlex
