// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <functional>

#include <QObject>
#include <QString>

class QStatusBar;
class QToolButton;

namespace app {

/// A text in the status bar that leads somewhere: by a click on it, and for the keyboard by a
/// button beside it, for as long as the bar shows that text.
class StatusLink : public QObject {
    Q_OBJECT
public:
    /// The bar owns it.
    explicit StatusLink(QStatusBar& bar);

    /// `follow` is what the text leads to, once the bar shows it.
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
