// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QFrame>

class QDialog;
class QLabel;

namespace app {

/// A line at the top of an open dialog or wizard saying that the session has ended. The dialog
/// grows by its height; everything else stays as it is.
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
    void makeRoom(int needed);
    void place();

    QDialog& dialog_;
    QLabel& label_;
    int room_ = 0; ///< height added to the dialog for the line
};

} // namespace app
