// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "app/connection_state.h"
#include "ui/elided_tool_button.h"

namespace app {

/// The field of the status bar that shows the state of the connection: abbreviated, with a picture,
/// and in full in its tool tip and for screen readers. A click or Return requests a connection
/// while the program is disconnected.
class ConnectionField : public ui::ElidedToolButton {
    Q_OBJECT
public:
    explicit ConnectionField(QWidget* parent = nullptr);

    void show(const ConnectionState& state);

signals:
    void connectWanted();

protected:
    void changeEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void setTexts();

    ConnectionState state_;
};

} // namespace app
