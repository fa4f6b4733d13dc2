// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "ui/remote_action.h"

#include <optional>

#include "transport/call_passage.h"
#include "ui/error_box.h"
#include "ui/wait_cursor.h"

namespace ui {

bool remoteAction(QWidget& widget, const QString& title, Cursor cursor,
                  const std::function<void()>& work) {
    if (hessiancln::CallPassage::underWay())
        return false;
    std::optional<WaitCursor> waiting;
    if (cursor == Cursor::wait)
        waiting.emplace(widget);
    try {
        work();
        return true;
    } catch (const std::exception& error) {
        // From here on, the program only waits for the user.
        waiting.reset();
        showError(&widget, title, errorText(error));
        return false;
    }
}

} // namespace ui
