// SPDX-License-Identifier: MIT
#include "display/screenconfiguration.h"

#define OX_LOG_FILE "screenconfiguration"
#include "libOxUtils/utils/log.h"

#include "display/screenarea.h"

#include <QSize>

#include <algorithm>
#include <cstdlib>
#include <memory>
#include <xcb/randr.h>

namespace {

struct Release
{
    void operator()(xcb_connection_t *connection) const { xcb_disconnect(connection); }
    void operator()(void *reply) const { std::free(reply); }
};

template<typename Object>
using Owned = std::unique_ptr<Object, Release>;

template<typename Object>
Owned<Object> owned(Object *object)
{
    return Owned<Object>(object);
}

// A connection of its own to the server's first screen: the toolkit gives its own away only through
// headers that are not public.
class RandR
{
public:
    RandR()
        : m_owned(xcb_connect(nullptr, nullptr))
        , m_x(m_owned.get())
    {
        if (xcb_connection_has_error(m_x) != 0)
            return;
        const auto *extension = xcb_get_extension_data(m_x, &xcb_randr_id);
        if (!extension || extension->present == 0)
            return;
        // Without being told a version the server takes the requests for those of the oldest.
        const auto cookie = xcb_randr_query_version(m_x, 1, 1);
        if (owned(xcb_randr_query_version_reply(m_x, cookie, nullptr)))
            m_root = xcb_setup_roots_iterator(xcb_get_setup(m_x)).data->root;
    }

    // Null without RandR.
    Owned<xcb_randr_get_screen_info_reply_t> info() const
    {
        if (m_root == XCB_NONE)
            return nullptr;
        const auto cookie = xcb_randr_get_screen_info(m_x, m_root);
        return owned(xcb_randr_get_screen_info_reply(m_x, cookie, nullptr));
    }

    // False when the server does not take it, or has no such size any more.
    bool set(const ScreenConfiguration &wanted) const
    {
        const auto current = info();
        if (!current)
            return false;
        // Where a size stands in the list changes with the mode.
        const auto *const sizes = xcb_randr_get_screen_info_sizes(current.get());
        const auto *const end = sizes + current->nSizes;
        const auto *const size = std::find_if(sizes, end, [&](const auto &offered) {
            return offered.width == wanted.width && offered.height == wanted.height;
        });
        if (size == end)
            return false;
        const auto cookie =
            xcb_randr_set_screen_config(m_x, m_root, XCB_CURRENT_TIME, current->config_timestamp,
                                        static_cast<std::uint16_t>(size - sizes), wanted.rotation,
                                        wanted.rate);
        const auto reply = owned(xcb_randr_set_screen_config_reply(m_x, cookie, nullptr));
        return reply && reply->status == XCB_RANDR_SET_CONFIG_SUCCESS;
    }

private:
    const Owned<xcb_connection_t> m_owned;
    xcb_connection_t *const m_x;
    xcb_window_t m_root = XCB_NONE;
};

} // namespace

bool operator==(const ScreenConfiguration &a, const ScreenConfiguration &b)
{
    return a.width == b.width && a.height == b.height && a.rotation == b.rotation &&
           a.rate == b.rate;
}

std::optional<ScreenConfiguration> shownConfiguration()
{
    const auto info = RandR().info();
    if (!info || info->sizeID >= info->nSizes)
        return std::nullopt;
    const xcb_randr_screen_size_t size = xcb_randr_get_screen_info_sizes(info.get())[info->sizeID];
    return ScreenConfiguration{size.width, size.height, info->rotation, info->rate};
}

bool isRejectedModeLeft(const ScreenConfiguration &now, const ScreenConfiguration &before,
                        const DisplayMode &wanted)
{
    // A mode is applied only when its size is another than the wanted one's.
    return !(now == before) && (now.width != wanted.width || now.height != wanted.height);
}

void restoreIfRejectedModeLeft(const std::optional<ScreenConfiguration> &before,
                               const DisplayMode &wanted)
{
    const std::optional<ScreenConfiguration> now = shownConfiguration();
    if (!before || !now || !isRejectedModeLeft(*now, *before, wanted))
        return;
    const QString done = RandR().set(*before) ? QStringLiteral("is shown again")
                                              : QStringLiteral("cannot be shown again");
    oxlog::critical(OX_LOG_HERE, QStringLiteral("xrandr has left the rejected mode, %1x%2 %3.")
                                     .arg(QString::number(before->width),
                                          QString::number(before->height), done));
    const QSize size(before->width, before->height);
    const bool isUpright =
        (before->rotation & (XCB_RANDR_ROTATION_ROTATE_90 | XCB_RANDR_ROTATION_ROTATE_270)) == 0;
    waitForScreen(isUpright ? size : size.transposed());
}
