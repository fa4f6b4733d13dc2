// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "screen_watch.h"

#include <chrono>
#include <cstdlib>
#include <stdexcept>
#include <thread>

#include <poll.h>

#include <xcb/damage.h>
#include <xcb/xcb.h>

namespace bench {

namespace {

using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;

constexpr auto patience = 60s;
constexpr int windowWidth = 400;
constexpr int windowHeight = 300;

/// What libxcb returns belongs to the caller.
struct Free {
    void operator()(void* block) const { std::free(block); }
};
template <class Block>
std::unique_ptr<Block, Free> owned(Block* block) {
    return std::unique_ptr<Block, Free>(block);
}

bool hasWindows(xcb_connection_t* connection, xcb_window_t root) {
    const auto tree =
        owned(xcb_query_tree_reply(connection, xcb_query_tree(connection, root), nullptr));
    if (!tree)
        throw std::runtime_error("The display doesn't list its windows");
    return xcb_query_tree_children_length(tree.get()) > 0;
}

} // namespace

void ScreenWatch::Disconnect::operator()(xcb_connection_t* connection) const {
    xcb_disconnect(connection);
}

ScreenWatch::ScreenWatch()
    : connection_(xcb_connect(nullptr, nullptr)) {
    xcb_connection_t* const connection = connection_.get();
    if (xcb_connection_has_error(connection))
        throw std::runtime_error("No connection to the display");
    const auto* const extension = xcb_get_extension_data(connection, &xcb_damage_id);
    const auto version = owned(xcb_damage_query_version_reply(
        connection,
        xcb_damage_query_version(connection, XCB_DAMAGE_MAJOR_VERSION, XCB_DAMAGE_MINOR_VERSION),
        nullptr));
    if (!extension || !extension->present || !version)
        throw std::runtime_error("The display lacks the DAMAGE extension");
    damageEvent_ = static_cast<std::uint8_t>(extension->first_event + XCB_DAMAGE_NOTIFY);

    const xcb_window_t root = xcb_setup_roots_iterator(xcb_get_setup(connection)).data->root;
    const auto deadline = Clock::now() + patience;
    while (hasWindows(connection, root)) {
        if (Clock::now() > deadline)
            throw std::runtime_error("The windows of another program stay on the display");
        std::this_thread::sleep_for(10ms);
    }
    xcb_damage_create(connection, xcb_generate_id(connection), root,
                      XCB_DAMAGE_REPORT_LEVEL_RAW_RECTANGLES);
    // At first the whole screen counts as drawn.
    hasWindows(connection, root);
    while (owned(xcb_poll_for_event(connection))) {
    }
}

ScreenWatch::~ScreenWatch() = default;

void ScreenWatch::waitForWindow() {
    xcb_connection_t* const connection = connection_.get();
    const auto deadline = Clock::now() + patience;
    while (Clock::now() < deadline) {
        while (const auto event = owned(xcb_poll_for_event(connection))) {
            if ((event->response_type & 0x7f) != damageEvent_)
                continue;
            const xcb_rectangle_t area =
                reinterpret_cast<const xcb_damage_notify_event_t*>(event.get())->area;
            if (area.width >= windowWidth && area.height >= windowHeight)
                return;
        }
        if (xcb_connection_has_error(connection))
            break;
        pollfd display{xcb_get_file_descriptor(connection), POLLIN, 0};
        ::poll(&display, 1, 1000);
    }
    throw std::runtime_error("No window has been drawn");
}

} // namespace bench
