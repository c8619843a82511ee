// SPDX-License-Identifier: MIT
#include "app/x11_outputs.h"

#include <QGuiApplication>
#include <QRect>

#include <algorithm>
#include <cstdlib>
#include <memory>
#include <span>
#include <vector>
#include <xcb/randr.h>

namespace Quillory {

namespace {

struct FreeReply
{
    void operator()(void* reply) const { std::free(reply); }
};
template <typename T> using Reply = std::unique_ptr<T, FreeReply>;

constexpr unsigned kAllTurns = XCB_RANDR_ROTATION_ROTATE_0 | XCB_RANDR_ROTATION_ROTATE_90
    | XCB_RANDR_ROTATION_ROTATE_180 | XCB_RANDR_ROTATION_ROTATE_270;

/// A part of the screen, and the outputs that show it.
struct Crtc
{
    xcb_randr_crtc_t id = XCB_NONE;
    QRect area;
    xcb_randr_mode_t mode = XCB_NONE;
    unsigned rotation = XCB_RANDR_ROTATION_ROTATE_0;
    unsigned rotations = XCB_RANDR_ROTATION_ROTATE_0;
    std::vector<xcb_randr_output_t> outputs;

    QuarterTurns Turns() const
    {
        QuarterTurns turns = 0;
        while (turns < 3 && (rotation & (1U << turns)) == 0)
            ++turns;
        return turns;
    }
    Crtc Turned(QuarterTurns turns) const
    {
        Crtc turned = *this;
        turned.rotation = (rotation & ~kAllTurns) | (1U << turns);
        if ((turns - Turns()) % 2 != 0)
            turned.area.setSize(area.size().transposed());
        return turned;
    }
};

/// One screen of the X server.
class X11Screen
{
public:
    X11Screen(xcb_connection_t* connection, const xcb_screen_t& screen)
        : m_connection(connection)
        , m_screen(screen)
    {
        m_resources.reset(xcb_randr_get_screen_resources_current_reply(connection,
            xcb_randr_get_screen_resources_current(connection, m_screen.root), nullptr));
        if (m_resources == nullptr)
            return;
        const std::span ids(xcb_randr_get_screen_resources_current_crtcs(m_resources.get()),
            m_resources->num_crtcs);
        for (const xcb_randr_crtc_t id : ids)
            AddCrtc(id);
    }

    /// Null if there is no output so named, or it shows nothing.
    const Crtc* CrtcOf(const QByteArray& outputName) const
    {
        const auto isSought = [&](xcb_randr_output_t id) { return NameOf(id) == outputName; };
        const auto found = std::find_if(m_crtcs.begin(), m_crtcs.end(), [&](const Crtc& crtc) {
            return std::any_of(crtc.outputs.begin(), crtc.outputs.end(), isSought);
        });
        return found == m_crtcs.end() ? nullptr : &*found;
    }

    bool Turn(const Crtc& crtc, QuarterTurns turns) const
    {
        const Crtc turned = crtc.Turned(turns);
        if ((turned.rotation & ~crtc.rotations) != 0)
            return false;
        QRect needed = turned.area;
        for (const Crtc& other : m_crtcs) {
            if (other.id == crtc.id)
                continue;
            if (other.area.intersects(turned.area))
                return false;
            needed |= other.area;
        }
        const QSize after(needed.right() + 1, needed.bottom() + 1);
        return Show(turned, crtc, after);
    }

private:
    xcb_connection_t* m_connection;
    const xcb_screen_t& m_screen;
    Reply<xcb_randr_get_screen_resources_current_reply_t> m_resources;
    std::vector<Crtc> m_crtcs;

    void AddCrtc(xcb_randr_crtc_t id)
    {
        const Reply<xcb_randr_get_crtc_info_reply_t> info(
            xcb_randr_get_crtc_info_reply(m_connection,
                xcb_randr_get_crtc_info(m_connection, id, m_resources->config_timestamp), nullptr));
        if (info == nullptr || info->mode == XCB_NONE)
            return;
        const std::span outputs(xcb_randr_get_crtc_info_outputs(info.get()), info->num_outputs);
        m_crtcs.push_back({ id, QRect(info->x, info->y, info->width, info->height), info->mode,
            info->rotation, info->rotations, { outputs.begin(), outputs.end() } });
    }

    QByteArray NameOf(xcb_randr_output_t id) const
    {
        const Reply<xcb_randr_get_output_info_reply_t> info(xcb_randr_get_output_info_reply(
            m_connection,
            xcb_randr_get_output_info(m_connection, id, m_resources->config_timestamp), nullptr));
        if (info == nullptr)
            return {};
        return { reinterpret_cast<const char*>(xcb_randr_get_output_info_name(info.get())),
            xcb_randr_get_output_info_name_length(info.get()) };
    }

    /// Shows `turned` on a screen of size `after`. The screen is first made large enough for both
    /// ways, so that no output is dark in between, wherever the program may be killed.
    bool Show(const Crtc& turned, const Crtc& before, QSize after) const
    {
        const QSize size = Size();
        if (!SetSize(size.expandedTo(after)))
            return false;
        if (Set(turned)) {
            if (SetSize(after))
                return true;
            static_cast<void>(Set(before));
        }
        static_cast<void>(SetSize(size));
        return false;
    }

    QSize Size() const
    {
        const Reply<xcb_get_geometry_reply_t> geometry(xcb_get_geometry_reply(
            m_connection, xcb_get_geometry(m_connection, m_screen.root), nullptr));
        return geometry == nullptr ? QSize() : QSize(geometry->width, geometry->height);
    }

    bool SetSize(QSize size) const
    {
        if (size == Size())
            return true;
        // The number of dots per inch stays.
        const auto millimetres = [this](int pixels) {
            const double density = m_screen.height_in_millimeters
                / static_cast<double>(std::max<uint16_t>(1, m_screen.height_in_pixels));
            return static_cast<uint32_t>(std::max(1, qRound(pixels * density)));
        };
        const Reply<xcb_generic_error_t> error(xcb_request_check(m_connection,
            xcb_randr_set_screen_size_checked(m_connection, m_screen.root,
                static_cast<uint16_t>(size.width()), static_cast<uint16_t>(size.height()),
                millimetres(size.width()), millimetres(size.height()))));
        return error == nullptr;
    }

    bool Set(const Crtc& crtc) const
    {
        xcb_generic_error_t* error = nullptr;
        const Reply<xcb_randr_set_crtc_config_reply_t> reply(
            xcb_randr_set_crtc_config_reply(m_connection,
                xcb_randr_set_crtc_config(m_connection, crtc.id, XCB_CURRENT_TIME,
                    m_resources->config_timestamp, static_cast<int16_t>(crtc.area.x()),
                    static_cast<int16_t>(crtc.area.y()), crtc.mode,
                    static_cast<uint16_t>(crtc.rotation),
                    static_cast<uint32_t>(crtc.outputs.size()), crtc.outputs.data()),
                &error));
        const Reply<xcb_generic_error_t> owned(error);
        return reply != nullptr && reply->status == XCB_RANDR_SET_CONFIG_SUCCESS;
    }
};

/// The connection of the program's windows; null where it has none, or no RandR 1.3 at its end.
xcb_connection_t* RandrConnection()
{
    const auto* x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    // The offscreen platform has the interface, and nothing behind it.
    xcb_connection_t* connection = x11 == nullptr ? nullptr : x11->connection();
    if (connection == nullptr)
        return nullptr;
    const xcb_query_extension_reply_t* extension
        = xcb_get_extension_data(connection, &xcb_randr_id);
    if (extension == nullptr || extension->present == 0)
        return nullptr;
    const Reply<xcb_randr_query_version_reply_t> version(xcb_randr_query_version_reply(
        connection, xcb_randr_query_version(connection, 1, 3), nullptr));
    const bool isRecent
        = version != nullptr && (version->major_version > 1 || version->minor_version >= 3);
    return isRecent ? connection : nullptr;
}

/// What `use` returns for the output's screen and its part of that; false if there is no such
/// output.
template <typename Use>
bool UseOutput(xcb_connection_t* connection, const QString& name, const Use& use)
{
    auto screens = xcb_setup_roots_iterator(xcb_get_setup(connection));
    for (; screens.rem > 0; xcb_screen_next(&screens)) {
        const X11Screen screen(connection, *screens.data);
        const Crtc* crtc = screen.CrtcOf(name.toUtf8());
        if (crtc != nullptr)
            return use(screen, *crtc);
    }
    return false;
}

} // namespace

std::optional<QuarterTurns> TurnsOfOutput(const QString& name)
{
    std::optional<QuarterTurns> turns;
    if (xcb_connection_t* connection = RandrConnection()) {
        static_cast<void>(UseOutput(connection, name, [&](const X11Screen&, const Crtc& crtc) {
            turns = crtc.Turns();
            return true;
        }));
    }
    return turns;
}

bool TurnOutput(const QString& name, QuarterTurns from, QuarterTurns to)
{
    xcb_connection_t* connection = RandrConnection();
    if (connection == nullptr)
        return false;
    // Nobody sees a half of the change, and nobody makes another amid it.
    xcb_grab_server(connection);
    const bool isTurned
        = UseOutput(connection, name, [&](const X11Screen& screen, const Crtc& crtc) {
              return crtc.Turns() == from && screen.Turn(crtc, to);
          });
    xcb_ungrab_server(connection);
    xcb_flush(connection);
    return isTurned;
}

} // namespace Quillory
