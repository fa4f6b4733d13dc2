// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "insight/set_health.h"
#include "ui/elided_tool_button.h"

namespace app {

/// A one-line health summary of all sets for the status bar; a click requests details.
class HealthField : public ui::ElidedToolButton {
    Q_OBJECT
public:
    explicit HealthField(QWidget* parent = nullptr);

    void showCount(const insight::HealthCount& count);
    /// For use without a session.
    void showNothing();

protected:
    void changeEvent(QEvent* event) override;

private:
    void setTexts();

    insight::HealthCount count_;
    bool isKnown_ = false;
};

} // namespace app
