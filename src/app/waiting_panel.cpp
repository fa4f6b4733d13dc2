// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "app/waiting_panel.h"

#include <algorithm>

#include <QAccessible>
#include <QEvent>
#include <QStyle>

#include "ui_waiting_panel.h"

namespace {

constexpr int usualWidth = 340;
constexpr int gap = 8; ///< on both sides, in a small window

} // namespace

WaitingPanel::WaitingPanel()
    : ui_(std::make_unique<Ui::WaitingPanel>()) {
    ui_->setupUi(this);
    connect(ui_->buttonDisconnect, &QPushButton::clicked, this, &WaitingPanel::disconnectClicked);
    hide();
}

WaitingPanel::~WaitingPanel() = default;

void WaitingPanel::showOver(QWidget* host, const Reason& reason) {
    reason_ = reason;
    if (host != host_)
        setHost(host);
    if (!host_)
        return;
    setText();
    setPicture();
    const bool wasVisible = isVisible();
    // Fonts are known only for visible widgets.
    show();
    place();
    if (!wasVisible)
        raise();
}

void WaitingPanel::announce() {
    QAccessibleEvent alert(this, QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
}

bool WaitingPanel::isButtonDown() const {
    return isVisible() && ui_->buttonDisconnect->isDown();
}

void WaitingPanel::setHost(QWidget* host) {
    if (host_)
        host_->removeEventFilter(this);
    host_ = host;
    setParent(host);
    if (host)
        host->installEventFilter(this);
}

void WaitingPanel::setText() {
    QString sentence = tr("The agent hasn't answered for %1 s.");
    if (reason_.awaited == hessiancln::Awaited::logonService)
        sentence = tr("The logon service hasn't answered for %1 s.");
    else if (reason_.slow)
        sentence = tr("The agent has answered slowly for %1 s.");
    const QString text = sentence.arg(reason_.elapsed.count());
    ui_->labelWaiting->setText(text);
    setAccessibleName(text);
}

/// Not in the constructor: the search in the themes of the desktop would delay the program's start.
void WaitingPanel::setPicture() {
    if (!ui_->labelPicture->pixmap(Qt::ReturnByValue).isNull())
        return;
    const int size = style()->pixelMetric(QStyle::PM_LargeIconSize);
    ui_->labelPicture->setPixmap(
        style()->standardIcon(QStyle::SP_MessageBoxInformation).pixmap(size));
}

void WaitingPanel::place() {
    const int wide = std::min(usualWidth, host_->width() - 2 * gap);
    const int high = std::max(heightForWidth(wide), minimumSizeHint().height());
    const QRect place(QPoint(), QSize(wide, high));
    setGeometry(place.translated(host_->rect().center() - place.center()));
}

bool WaitingPanel::eventFilter(QObject* watched, QEvent* event) {
    if (watched == host_ && event->type() == QEvent::Resize)
        place();
    return QFrame::eventFilter(watched, event);
}

void WaitingPanel::changeEvent(QEvent* event) {
    if (event->type() == QEvent::LanguageChange) {
        ui_->retranslateUi(this);
        setText();
    }
    QFrame::changeEvent(event);
}
