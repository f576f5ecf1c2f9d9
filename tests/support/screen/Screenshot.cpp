#include "support/screen/Screenshot.h"

#include "foundation/FatalError.h"
#include "support/basics/Eventually.h"

#include <optional>
#include <png.h>

namespace brindlex {
namespace {

constexpr int bytesPerPixel = 4;

} // namespace

Screenshot::Screenshot(const XConnection& server)
    : Screenshot(server, {0, 0, server.screen().width_in_pixels, server.screen().height_in_pixels})
{
}

Screenshot::Screenshot(const XConnection& server, const ScreenArea& area)
    : width_(area.width), height_(area.height)
{
    const auto cookie = xcb_get_image(server.get(), XCB_IMAGE_FORMAT_Z_PIXMAP, server.root(),
        static_cast<std::int16_t>(area.x), static_cast<std::int16_t>(area.y),
        static_cast<std::uint16_t>(area.width), static_cast<std::uint16_t>(area.height), ~0u);
    const XReply<xcb_get_image_reply_t> image(xcb_get_image_reply(server.get(), cookie, nullptr));
    if (!image
        || xcb_get_image_data_length(image.get()) != area.width * area.height * bytesPerPixel)
        fatalError("The screen cannot be read.");
    const auto bytes = xcb_get_image_data(image.get());
    pixels_.resize(static_cast<std::size_t>(area.width) * static_cast<std::size_t>(area.height));
    for (std::size_t index = 0; index < pixels_.size(); ++index) {
        const auto pixel = bytes + index * bytesPerPixel;
        pixels_[index] = {pixel[2], pixel[1], pixel[0]};
    }
}

Screenshot::Pixel Screenshot::at(int x, int y) const
{
    return pixels_.at(static_cast<std::size_t>(y * width_ + x));
}

int Screenshot::differencesFrom(const Screenshot& other) const
{
    int count = 0;
    for (std::size_t index = 0; index < pixels_.size(); ++index)
        count += pixels_[index] != other.pixels_.at(index);
    return count;
}

bool Screenshot::save(const std::filesystem::path& file) const
{
    png_image image{};
    image.version = PNG_IMAGE_VERSION;
    image.width = static_cast<png_uint_32>(width_);
    image.height = static_cast<png_uint_32>(height_);
    image.format = PNG_FORMAT_RGB;
    return png_image_write_to_file(&image, file.c_str(), 0, pixels_.data(), 0, nullptr) != 0;
}

bool comesToRest(const XConnection& server, const ScreenArea& area)
{
    std::optional<Screenshot> last;
    return eventually([&] {
        Screenshot now(server, area);
        const bool isSteady = last && now.differencesFrom(*last) == 0;
        last = std::move(now);
        return isSteady;
    });
}

} // namespace brindlex
