// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <functional>

#include <QObject>
#include <QString>

class QStatusBar;
class QToolButton;

namespace app {

/// A link in the status bar: activated by a click on the text or, for keyboard users, by a button
/// beside it, as long as the bar shows that text.
class StatusLink : public QObject {
    Q_OBJECT
public:
    /// Owned by the bar.
    explicit StatusLink(QStatusBar& bar);

    /// Sets the action of the text, for when the bar shows it.
    void offer(const QString& text, std::function<void()> follow);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool isShown() const;
    void showOrHide();
    void setTexts();
    void follow();

    QStatusBar& bar_;
    QToolButton& button_;
    QString text_;
    std::function<void()> follow_;
};

} // namespace app
