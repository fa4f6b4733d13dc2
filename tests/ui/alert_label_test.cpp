// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include <QAccessible>
#include <QtTest>

#include "tests/support/gui_screen_reader.h"
#include "ui/alert_label.h"

namespace {

QString q(const char* text) {
    return QString::fromUtf8(text);
}

} // namespace

/// A text that appears away from the focus is announced.
class AlertLabelTest : public QObject {
    Q_OBJECT
private slots:
    void anAnnouncementIsHeard() {
        const support::ScreenReader reader;
        ui::AlertLabel label;
        label.announce(q("Values imported: 3."));
        QCOMPARE(reader.heard(), QStringList());
        label.show();
        QCOMPARE(reader.heard(), QStringList{q("Values imported: 3.")});
        label.announce(q("Values imported: 4."));
        QCOMPARE(reader.heard().last(), q("Values imported: 4."));
        QCOMPARE(reader.heard().size(), 2);
        QCOMPARE(label.text(), q("Values imported: 4."));
    }

    void otherLabelsAreNoAlerts() {
        const support::ScreenReader reader;
        const ui::AlertLabel alert;
        QLabel label(q("Name"));
        label.show();
        QCOMPARE(reader.heard(), QStringList());
        QCOMPARE(QAccessible::queryAccessibleInterface(&label)->role(), QAccessible::StaticText);
    }
};

QTEST_MAIN(AlertLabelTest)
#include "alert_label_test.moc"
