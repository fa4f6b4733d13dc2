// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QWidget>

#include "app/connection_state.h"

class QAbstractItemView;
class QLabel;
class QPushButton;

namespace app {

/// A notice in the middle of a list saying that the session has ended and why, with a button to
/// connect.
class SessionEndedNotice : public QWidget {
    Q_OBJECT
public:
    /// Owned by `list`, initially hidden.
    explicit SessionEndedNotice(QAbstractItemView& list);

    /// Appears if there is no session.
    void showEnd(const ConnectionState& state);

    bool eventFilter(QObject* watched, QEvent* event) override;

signals:
    void connectWanted();

protected:
    void changeEvent(QEvent* event) override;

private:
    void setTexts();
    void place();

    QAbstractItemView& list_;
    QLabel& label_;
    QPushButton& button_;
    ConnectionState state_;
};

} // namespace app
