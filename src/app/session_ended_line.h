// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QFrame>

class QDialog;
class QLabel;

namespace app {

/// A line at the top of an open dialog or wizard saying that the session has ended. The dialog
/// grows by its height, and everything else stays as it is. If the screen is too small for that,
/// the content shrinks to its minimum, and the line covers the rest.
class SessionEndedLine : public QFrame {
    Q_OBJECT
public:
    /// Adds such a line to each visible dialog and wizard, or updates the text of an existing one.
    /// Plain message boxes get none.
    static void showInOpenDialogs(const QString& text);

    /// Removes the line from windows that stay open in a new session, that is, from non-modal ones.
    static void removeFromOpenWindows();

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    explicit SessionEndedLine(QDialog& dialog);

    void setText(const QString& text);
    void makeRoom();
    void giveRoomBack();
    void setFreed(int height);
    int largestFreed() const;
    void place();

    QDialog& dialog_;
    QLabel& label_;
    int height_ = 0;
    int freed_ = 0; ///< height at the top of the content that is kept free for the line
    int grown_ = 0; ///< by which the dialog is higher for the line
};

} // namespace app
