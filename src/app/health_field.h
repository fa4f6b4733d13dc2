// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QToolButton>

#include "insight/set_health.h"

namespace app {

/// A one-line health summary of all sets for the status bar; a click requests details.
class HealthField : public QToolButton {
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
