// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QFrame>

class QDialog;
class QLabel;

namespace app {

/// A line at the top of an open dialog or wizard, which says that the session has ended. The dialog
/// grows by it; all else in there stays as it is.
class SessionEndedLine : public QFrame {
    Q_OBJECT
public:
    /// Gives each dialog and wizard on the screen such a line, or a new text to the one that it
    /// has. Boxes that only say something get none.
    static void showInOpenDialogs(const QString& text);

    /// A new session has begun: takes the line from windows that go on with it, as those that
    /// aren't modal do.
    static void removeFromOpenWindows();

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    explicit SessionEndedLine(QDialog& dialog);

    void setText(const QString& text);
    void makeRoom();
    void makeRoom(int needed);
    void place();

    QDialog& dialog_;
    QLabel& label_;
    int room_ = 0; ///< that the dialog has made for the line
};

} // namespace app
