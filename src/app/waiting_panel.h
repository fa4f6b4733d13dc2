// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <chrono>
#include <memory>

#include <QFrame>
#include <QPointer>

namespace Ui {
class WaitingPanel;
}

/// Says how long the agent hasn't answered, and lets the user leave it. Lies over the middle of a
/// window, and moves to the one that is in front then, whenever it is brought up to date.
class WaitingPanel : public QFrame {
    Q_OBJECT
public:
    WaitingPanel();
    ~WaitingPanel() override;

    /// Shows itself over `host`, or hides where there is none.
    void showOver(QWidget* host, std::chrono::seconds elapsed);

    bool eventFilter(QObject* watched, QEvent* event) override;

signals:
    void disconnectClicked();

protected:
    void changeEvent(QEvent* event) override;

private:
    void setHost(QWidget* host);
    void setText();
    void place();

    std::unique_ptr<Ui::WaitingPanel> ui_;
    QPointer<QWidget> host_;
    std::chrono::seconds elapsed_{0};
};
