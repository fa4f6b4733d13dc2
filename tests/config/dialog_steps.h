// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>

#include "tests/support/gui_click.h"
#include "tests/support/gui_wizard.h"

/// Test steps shared by the tests of the dialogs.
namespace steps {

using Calls = std::vector<std::string>;

inline QString q(const char* text) {
    return QString::fromUtf8(text);
}

inline Calls operator+(Calls calls, const Calls& more) {
    calls.insert(calls.end(), more.begin(), more.end());
    return calls;
}

/// The calls up to and including the one that failed.
inline Calls first(int count, Calls calls) {
    calls.resize(static_cast<std::size_t>(count));
    return calls;
}

inline const Calls managerAsked{"ClientConnection.getConfigurationManager()"};

inline void press(QWidget& dialog, const char* button) {
    auto& found = support::child<QAbstractButton>(dialog, button);
    QVERIFY2(found.isEnabled(), button);
    support::clickBox(found);
}

inline QString text(QWidget& dialog, const char* field) {
    return support::child<QLineEdit>(dialog, field).text();
}

inline void type(QWidget& dialog, const char* field, const char* text) {
    support::child<QLineEdit>(dialog, field).setText(q(text));
}

inline QString label(QWidget& dialog, const char* name) {
    return support::child<QLabel>(dialog, name).text();
}

inline bool isChecked(QWidget& dialog, const char* button) {
    return support::child<QAbstractButton>(dialog, button).isChecked();
}

inline bool isEnabled(QWidget& dialog, const char* name) {
    return support::child<QWidget>(dialog, name).isEnabled();
}

/// An information box with an Ok button, which is pressed.
inline void expectNews(support::ModalDriver& modals, const char* title, const char* text) {
    modals.expect(q("news"), support::isDialog<QMessageBox>, [=](QWidget& widget) {
        auto& box = static_cast<QMessageBox&>(widget);
        QCOMPARE(box.icon(), QMessageBox::Information);
        QCOMPARE(box.windowTitle(), q(title));
        QCOMPARE(box.text(), q(text));
        QCOMPARE(int(box.standardButtons()), int(QMessageBox::Ok));
        QTest::mouseClick(box.button(QMessageBox::Ok), Qt::LeftButton);
    });
}

/// The texts that a label has painted.
class StatusWatch : public QObject {
public:
    explicit StatusWatch(QLabel& label)
        : label_(label) {
        label.installEventFilter(this);
    }
    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() == QEvent::Paint)
            painted << label_.text();
        return false;
    }

    QStringList painted;

private:
    QLabel& label_;
};

/// Makes the call after the next `calls` calls of the method fail.
inline void failAfter(support::GuiAgent& agent, int calls, const char* method) {
    for (int i = 0; i < calls; ++i)
        agent.inject(method, simulator::Delay{std::chrono::milliseconds(0)});
    agent.inject(method, simulator::Fault{"Out of order."});
}

} // namespace steps
