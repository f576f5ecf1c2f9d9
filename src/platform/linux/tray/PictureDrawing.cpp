#include "platform/linux/tray/PictureDrawing.h"

#include <xcb/render.h>
#include <xcb/xcb_renderutil.h>

namespace brindlex {
namespace {

constexpr std::uint8_t argbDepth = 32;

/// An image as a picture of the server's, as long as this object exists.
class ServerPicture {
public:
    ServerPicture(X11Connection& connection, const QImage& image, xcb_render_pictformat_t format)
        : server_(connection.get()), pixmap_(xcb_generate_id(server_)),
          picture_(xcb_generate_id(server_))
    {
        const auto pixels = image.convertToFormat(QImage::Format_ARGB32_Premultiplied);
        const auto width = static_cast<std::uint16_t>(pixels.width());
        const auto height = static_cast<std::uint16_t>(pixels.height());
        const auto context = xcb_generate_id(server_);
        xcb_create_pixmap(server_, argbDepth, pixmap_, connection.root(), width, height);
        xcb_create_gc(server_, context, pixmap_, 0, nullptr);
        xcb_put_image(server_, XCB_IMAGE_FORMAT_Z_PIXMAP, pixmap_, context, width, height, 0, 0, 0,
            argbDepth, static_cast<std::uint32_t>(pixels.sizeInBytes()), pixels.constBits());
        xcb_free_gc(server_, context);
        xcb_render_create_picture(server_, picture_, pixmap_, format, 0, nullptr);
    }
    ~ServerPicture()
    {
        xcb_render_free_picture(server_, picture_);
        xcb_free_pixmap(server_, pixmap_);
    }
    ServerPicture(const ServerPicture&) = delete;
    ServerPicture& operator=(const ServerPicture&) = delete;

    xcb_render_picture_t get() const { return picture_; }

private:
    xcb_connection_t* server_;
    xcb_pixmap_t pixmap_;
    xcb_render_picture_t picture_;
};

void composite(xcb_connection_t* server, xcb_render_picture_t source, xcb_render_picture_t target,
    QSize size, QSize area)
{
    const auto x = static_cast<std::int16_t>((area.width() - size.width()) / 2);
    const auto y = static_cast<std::int16_t>((area.height() - size.height()) / 2);
    xcb_render_composite(server, XCB_RENDER_PICT_OP_OVER, source, XCB_RENDER_PICTURE_NONE, target,
        0, 0, 0, 0, x, y, static_cast<std::uint16_t>(size.width()),
        static_cast<std::uint16_t>(size.height()));
}

} // namespace

void drawOverBackground(X11Connection& connection, xcb_window_t window, xcb_visualid_t visual,
    QSize size, const QImage& image)
{
    auto* const server = connection.get();
    xcb_clear_area(server, false, window, 0, 0, 0, 0);
    // Kept by the library from the first time on.
    const auto* const formats = xcb_render_util_query_formats(server);
    if (!formats)
        return;
    const auto* const ofWindow = xcb_render_util_find_visual_format(formats, visual);
    const auto* const ofImage
        = xcb_render_util_find_standard_format(formats, XCB_PICT_STANDARD_ARGB_32);
    if (!ofWindow || !ofImage)
        return;
    const ServerPicture source(connection, image, ofImage->id);
    const auto target = xcb_generate_id(server);
    xcb_render_create_picture(server, target, window, ofWindow->format, 0, nullptr);
    composite(server, source.get(), target, image.size(), size);
    xcb_render_free_picture(server, target);
}

} // namespace brindlex
