// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <chrono>
#include <memory>

#include <QFrame>
#include <QPointer>

#include "transport/call_passage.h"

namespace Ui {
class WaitingPanel;
}

/// Shows what the program is waiting for, and for how long, and lets the user disconnect. Placed
/// over the middle of a window; each update moves it to the frontmost one.
class WaitingPanel : public QFrame {
    Q_OBJECT
public:
    struct Reason {
        hessiancln::Awaited awaited = hessiancln::Awaited::agent;
        bool slow = false; ///< the agent answers, but slowly; otherwise there is no answer
        std::chrono::seconds elapsed{0};
    };

    WaitingPanel();
    ~WaitingPanel() override;

    /// Shows the panel over `host`, or hides it if `host` is null.
    void showOver(QWidget* host, const Reason& reason);
    void hideFromHost() { showOver(nullptr, reason_); }

    /// Lets a screen reader read the panel out.
    void announce();

    /// Whether the user has pressed the button but not released it yet.
    bool isButtonDown() const;

    bool eventFilter(QObject* watched, QEvent* event) override;

signals:
    void disconnectClicked();

protected:
    void changeEvent(QEvent* event) override;

private:
    void setHost(QWidget* host);
    void setText();
    void setPicture();
    void place();

    std::unique_ptr<Ui::WaitingPanel> ui_;
    QPointer<QWidget> host_;
    Reason reason_;
};
