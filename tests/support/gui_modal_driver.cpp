// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "tests/support/gui_modal_driver.h"

#include <algorithm>
#include <utility>

#include <QApplication>
#include <QDialog>
#include <QDir>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTimer>

namespace support {

namespace {

constexpr int interval = 5;

void fail(const QString& text) {
    QTest::qFail(qPrintable(text), __FILE__, __LINE__);
}

QString describe(QWidget& widget) {
    QString text = QString::fromLatin1(widget.metaObject()->className()) + QStringLiteral(" \"") +
                   widget.windowTitle() + QLatin1Char('"');
    if (auto* box = qobject_cast<QMessageBox*>(&widget))
        text += QStringLiteral(" saying \"") + box->text() + QLatin1Char('"');
    return text;
}

bool timersComeFirst() {
    return QSysInfo::kernelType() == QLatin1String("winnt");
}

void checkErrorBox(QMessageBox& box, const QString& title, const QString& text) {
    if (box.windowTitle() != title || box.text() != text)
        fail(QStringLiteral("Expected the box \"%1\" saying \"%2\", met %3")
                 .arg(title, text, describe(box)));
    if (box.icon() != QMessageBox::Critical || box.standardButtons() != QMessageBox::Ok)
        fail(describe(box) + QStringLiteral(" is no error box with one Ok button"));
    QTest::mouseClick(box.button(QMessageBox::Ok), Qt::LeftButton);
}

} // namespace

QString savePicture(QWidget& widget, const QString& name) {
    QDir().mkpath(QStringLiteral("gui-failures"));
    const QString path =
        QDir(QStringLiteral("gui-failures")).absoluteFilePath(name + QStringLiteral(".png"));
    widget.grab().save(path);
    return path;
}

ModalDriver::ModalDriver() {
    lookSoon();
}

ModalDriver::~ModalDriver() = default;

void ModalDriver::expect(const QString& name, Test test, Act act) {
    steps_.push_back({name, std::move(test), std::move(act)});
}

void ModalDriver::expectErrorBox(const QString& title, const QString& text) {
    expect(QStringLiteral("error box ") + title, isDialog<QMessageBox>,
           [=](QWidget& box) { checkErrorBox(static_cast<QMessageBox&>(box), title, text); });
}

// Single shots: a timer doesn't fire again while its slot runs, and a step may open the next
// dialog.
void ModalDriver::lookSoon() {
    QTimer::singleShot(interval, &context_, [this] { look(); });
}

void ModalDriver::look() {
    lookSoon();
    QWidget* dialog = unmetDialog();
    if (!dialog)
        return;
    if (timersComeFirst())
        meetAfterPostedEvents(*dialog);
    else
        meet(*dialog);
}

/// On Windows a timer fires ahead of the events that are posted already, and the dialog may have
/// put off some of its work.
void ModalDriver::meetAfterPostedEvents(QWidget& dialog) {
    if (std::exchange(meeting_, true))
        return;
    const auto meetIt = [this, dialog = QPointer<QWidget>(&dialog)] {
        meeting_ = false;
        if (dialog && dialog == unmetDialog())
            meet(*dialog);
    };
    QMetaObject::invokeMethod(&context_, meetIt, Qt::QueuedConnection);
}

QWidget* ModalDriver::unmetDialog() const {
    QWidget* dialog = QApplication::activeModalWidget();
    const bool waits = dialog && dialog->isVisible() &&
                       std::find(busy_.begin(), busy_.end(), dialog) == busy_.end();
    return waits ? dialog : nullptr;
}

void ModalDriver::meet(QWidget& dialog) {
    if (steps_.empty() || !steps_.front().test(dialog)) {
        refuse(dialog);
        return;
    }
    const Step step = std::move(steps_.front());
    steps_.pop_front();
    busy_.emplace_back(&dialog);
    step.act(dialog);
    busy_.pop_back();
}

void ModalDriver::refuse(QWidget& dialog) {
    const QString expected = steps_.empty() ? QStringLiteral("no dialog") : steps_.front().name;
    const QString picture = savePicture(dialog, QString::fromLatin1(QTest::currentTestFunction()));
    fail(QStringLiteral("Expected %1, met %2, see %3").arg(expected, describe(dialog), picture));
    // Closes it, so that the test can end.
    if (auto* box = qobject_cast<QDialog*>(&dialog))
        box->done(1);
    else
        dialog.close();
}

bool ModalDriver::done() {
    if (QWidget* open = QApplication::activeModalWidget()) {
        refuse(*open);
        return false;
    }
    for (const Step& step : steps_)
        fail(step.name + QStringLiteral(" didn't come"));
    const bool all = steps_.empty();
    steps_.clear();
    return all;
}

} // namespace support
