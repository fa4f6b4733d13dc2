// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "ui/date_fields.h"

#include <memory>

#include <QApplication>
#include <QDateTimeEdit>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QProxyStyle>
#include <QTest>

namespace {

/// The buttons of its combo boxes take that much more room.
class ButtonStyle : public QProxyStyle {
public:
    explicit ButtonStyle(int room)
        : QProxyStyle(QStringLiteral("fusion"))
        , room_(room) {}

    QRect subControlRect(ComplexControl control, const QStyleOptionComplex* option, SubControl part,
                         const QWidget* widget) const override {
        const QRect rect = QProxyStyle::subControlRect(control, option, part, widget);
        return part == SC_ComboBoxEditField && control == CC_ComboBox
                   ? rect.adjusted(0, 0, -room_, 0)
                   : rect;
    }

private:
    int room_;
};

void useButtons(int room) {
    QApplication::setStyle(std::make_unique<ButtonStyle>(room).release());
}

struct Form : QWidget {
    explicit Form(bool calendar)
        : row(this)
        , field(QDateTime({2026, 11, 22}, {20, 15})) {
        field.setDisplayFormat(QStringLiteral("yyyy-MM-dd HH:mm"));
        field.setCalendarPopup(calendar);
        row.addWidget(&field);
        row.addStretch();
    }

    /// After the form is shown.
    bool showsWholeText() {
        show();
        const auto* edit = field.findChild<QLineEdit*>();
        return edit->width() >= edit->fontMetrics().horizontalAdvance(edit->text()) + 4;
    }

    QHBoxLayout row;
    QDateTimeEdit field;
};

} // namespace

class DateFieldsTest : public QObject {
    Q_OBJECT
private slots:
    void cleanup() { QApplication::setStyle(QStringLiteral("fusion")); }

    void aFieldWithAWideButtonShowsItsText() {
        useButtons(30);
        QVERIFY(!Form(true).showsWholeText());
        Form form(true);
        ui::fitDateFields(form);
        QVERIFY(form.showsWholeText());
    }

    void aFieldWithEnoughRoomKeepsItsWidth() {
        useButtons(-10);
        Form form(true);
        ui::fitDateFields(form);
        QCOMPARE(form.field.minimumWidth(), 0);
    }

    void aFieldWithoutACalendarKeepsItsWidth() {
        useButtons(30);
        Form form(false);
        ui::fitDateFields(form);
        QCOMPARE(form.field.minimumWidth(), 0);
        QVERIFY(form.showsWholeText());
    }
};

QTEST_MAIN(DateFieldsTest)
#include "date_fields_test.moc"
