#include "support/hardware/PointerMap.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace brindlex {

void setPointerMap(const XConnection& server, const std::vector<std::uint8_t>& first)
{
    const XReply<xcb_get_pointer_mapping_reply_t> present(xcb_get_pointer_mapping_reply(
        server.get(), xcb_get_pointer_mapping(server.get()), nullptr));
    ASSERT_TRUE(present);
    std::vector<std::uint8_t> map(
        static_cast<std::size_t>(xcb_get_pointer_mapping_map_length(present.get())));
    for (std::size_t index = 0; index < map.size(); ++index)
        map[index] = static_cast<std::uint8_t>(index + 1);
    ASSERT_LE(first.size(), map.size());
    std::ranges::copy(first, map.begin());
    const XReply<xcb_set_pointer_mapping_reply_t> reply(xcb_set_pointer_mapping_reply(server.get(),
        xcb_set_pointer_mapping(server.get(), static_cast<std::uint8_t>(map.size()), map.data()),
        nullptr));
    ASSERT_TRUE(reply);
    EXPECT_EQ(reply->status, XCB_MAPPING_STATUS_SUCCESS);
}

} // namespace brindlex
