// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <memory>

struct xcb_connection_t;

namespace bench {

/// What programs draw on the X display that DISPLAY names, as the server sees it (DAMAGE
/// extension).
class ScreenWatch {
public:
    /// Waits until no window is left of earlier programs, then watches from here on. Throws
    /// `std::runtime_error`.
    ScreenWatch();
    ~ScreenWatch();

    /// Returns as soon as an area of the size of a main window has been drawn at once. Throws
    /// `std::runtime_error` after a minute without.
    void waitForWindow();

private:
    struct Disconnect {
        void operator()(xcb_connection_t* connection) const;
    };

    std::unique_ptr<xcb_connection_t, Disconnect> connection_;
    std::uint8_t damageEvent_ = 0;
};

} // namespace bench
