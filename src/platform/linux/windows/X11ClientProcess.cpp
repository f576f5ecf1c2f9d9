#include "platform/linux/windows/X11ClientProcess.h"

#include <xcb/res.h>

namespace brindlex {

std::int64_t clientProcess(X11Connection& connection, xcb_window_t window)
{
    const auto* extension = xcb_get_extension_data(connection.get(), &xcb_res_id);
    if (!extension || !extension->present)
        return 0;
    const xcb_res_client_id_spec_t wanted{window, XCB_RES_CLIENT_ID_MASK_LOCAL_CLIENT_PID};
    const X11Message<xcb_res_query_client_ids_reply_t> reply(xcb_res_query_client_ids_reply(
        connection.get(), xcb_res_query_client_ids(connection.get(), 1, &wanted), nullptr));
    if (!reply)
        return 0;
    for (auto ids = xcb_res_query_client_ids_ids_iterator(reply.get()); ids.rem > 0;
         xcb_res_client_id_value_next(&ids))
        if ((ids.data->spec.mask & wanted.mask) != 0
            && xcb_res_client_id_value_value_length(ids.data) > 0)
            return *xcb_res_client_id_value_value(ids.data);
    return 0;
}

} // namespace brindlex
