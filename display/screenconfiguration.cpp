// SPDX-License-Identifier: MIT
#include "display/screenconfiguration.h"

#define OX_LOG_FILE "screenconfiguration"
#include "libOxUtils/utils/log.h"

#include <algorithm>
#include <cstdlib>
#include <tuple>
#include <xcb/randr.h>

namespace {

struct Free
{
    void operator()(void *reply) const { std::free(reply); }
};

template<typename Reply>
std::unique_ptr<Reply, Free> owned(Reply *reply)
{
    return std::unique_ptr<Reply, Free>(reply);
}

// As it was when the connection was made.
const xcb_screen_t &screen(xcb_connection_t *x)
{
    return *xcb_setup_roots_iterator(xcb_get_setup(x)).data;
}

// False when the server does not take it.
bool set(xcb_connection_t *x, xcb_timestamp_t configTime, const LitCrtc &crtc)
{
    const auto cookie = xcb_randr_set_crtc_config(x, crtc.id, XCB_CURRENT_TIME, configTime, crtc.x,
                                                  crtc.y, crtc.mode, crtc.rotation,
                                                  static_cast<std::uint32_t>(crtc.outputs.size()),
                                                  crtc.outputs.data());
    const auto reply = owned(xcb_randr_set_crtc_config_reply(x, cookie, nullptr));
    return reply && reply->status == XCB_RANDR_SET_CONFIG_SUCCESS;
}

} // namespace

bool operator==(const LitCrtc &a, const LitCrtc &b)
{
    return std::tie(a.id, a.x, a.y, a.mode, a.rotation, a.outputs) ==
           std::tie(b.id, b.x, b.y, b.mode, b.rotation, b.outputs);
}

bool isPictureLost(const std::vector<LitCrtc> &now, const std::vector<LitCrtc> &before,
                   const DisplayMode &wanted)
{
    const auto isWanted = [&wanted](const LitCrtc &crtc) {
        return (crtc.width == wanted.width && crtc.height == wanted.height) ||
               (crtc.width == wanted.height && crtc.height == wanted.width);
    };
    const bool isDone =
        now.size() >= before.size() && std::any_of(now.begin(), now.end(), isWanted);
    return !before.empty() && now != before && !isDone;
}

ScreenConfiguration::ScreenConfiguration()
    : m_x(xcb_connect(nullptr, nullptr), &xcb_disconnect)
    , m_before(shown())
{
}

std::vector<LitCrtc> ScreenConfiguration::shown()
{
    std::vector<LitCrtc> found;
    xcb_connection_t *const x = m_x.get();
    if (xcb_connection_has_error(x) != 0)
        return found;
    // Every client has to say first which version it speaks.
    xcb_randr_query_version(x, 1, 3);
    const auto request = xcb_randr_get_screen_resources_current(x, screen(x).root);
    const auto resources = owned(xcb_randr_get_screen_resources_current_reply(x, request, nullptr));
    if (!resources)
        return found;
    m_configTime = resources->config_timestamp;
    const auto *const ids = xcb_randr_get_screen_resources_current_crtcs(resources.get());
    for (const auto *id = ids; id != ids + resources->num_crtcs; ++id) {
        const auto cookie = xcb_randr_get_crtc_info(x, *id, m_configTime);
        const auto crtc = owned(xcb_randr_get_crtc_info_reply(x, cookie, nullptr));
        if (!crtc || crtc->mode == XCB_NONE)
            continue;
        const auto *const outputs = xcb_randr_get_crtc_info_outputs(crtc.get());
        found.push_back({*id,
                         crtc->x,
                         crtc->y,
                         crtc->width,
                         crtc->height,
                         crtc->mode,
                         crtc->rotation,
                         {outputs, outputs + crtc->num_outputs}});
    }
    return found;
}

void ScreenConfiguration::restoreIfLost(const DisplayMode &wanted)
{
    const std::vector<LitCrtc> now = shown();
    if (!isPictureLost(now, m_before, wanted))
        return;
    xcb_connection_t *const x = m_x.get();
    // All dark at once: what is lit has to lie on the screen, also while the screen changes its
    // size.
    for (const LitCrtc &crtc : now)
        set(x, m_configTime, {crtc.id, 0, 0, 0, 0, XCB_NONE, XCB_RANDR_ROTATION_ROTATE_0, {}});
    const xcb_screen_t &before = screen(x);
    xcb_randr_set_screen_size(x, before.root, before.width_in_pixels, before.height_in_pixels,
                              before.width_in_millimeters, before.height_in_millimeters);
    bool isBack = true;
    for (const LitCrtc &crtc : m_before)
        isBack = set(x, m_configTime, crtc) && isBack;
    oxlog::critical(OX_LOG_HERE,
                    QStringLiteral("xrandr has not brought the picture back, which %1.")
                        .arg(isBack ? QStringLiteral("is shown again")
                                    : QStringLiteral("cannot be shown again")));
}
