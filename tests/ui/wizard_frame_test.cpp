// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include <QApplication>
#include <QPushButton>
#include <QWizard>
#include <QtTest>

#include "resources/pictures.h"
#include "ui/wizard_frame.h"

namespace {

QImage pictureOf(const QIcon& icon) {
    return icon.pixmap(16).toImage();
}

QImage pictureOf(QWizard& wizard, QWizard::WizardButton which) {
    return pictureOf(static_cast<QPushButton*>(wizard.button(which))->icon());
}

/// Delivers events while it is destroyed, as a page does that waits for the agent.
class WaitingPart : public QWidget {
public:
    using QWidget::QWidget;
    ~WaitingPart() override { QCoreApplication::sendPostedEvents(); }
};

class CountingPart : public QWidget {
public:
    CountingPart(QWidget* parent, int& events)
        : QWidget(parent)
        , events_(events) {}

protected:
    bool event(QEvent* event) override {
        events_ += event->type() == QEvent::User ? 1 : 0;
        return QWidget::event(event);
    }

private:
    int& events_;
};

} // namespace

class WizardFrameTest : public QObject {
    Q_OBJECT
private slots:
    void initTestCase() { resources::initPictures(); }
    void cleanup() { QApplication::setLayoutDirection(Qt::LeftToRight); }

    void theArrowsPointWhereThePagesAre_data() {
        QTest::addColumn<Qt::LayoutDirection>("direction");
        QTest::addColumn<QString>("back");
        QTest::addColumn<QString>("next");
        const QString left = QStringLiteral(":/button/back");
        const QString right = QStringLiteral(":/button/forward");
        QTest::newRow("left to right") << Qt::LeftToRight << left << right;
        QTest::newRow("right to left") << Qt::RightToLeft << right << left;
    }

    void theArrowsPointWhereThePagesAre() {
        QFETCH(Qt::LayoutDirection, direction);
        QFETCH(QString, back);
        QFETCH(QString, next);
        QVERIFY(pictureOf(QIcon(back)) != pictureOf(QIcon(next)));
        QApplication::setLayoutDirection(direction);
        QWizard wizard;
        ui::frameWizard(wizard, QStringLiteral("Wizard"), QStringLiteral(":/images/wizard_newset"));
        QCOMPARE(pictureOf(wizard, QWizard::BackButton), pictureOf(QIcon(back)));
        QCOMPARE(pictureOf(wizard, QWizard::NextButton), pictureOf(QIcon(next)));
    }

    void noEventReachesPartsThatAreDestroyed() {
        int events = 0;
        {
            ui::Wizard wizard;
            new WaitingPart(&wizard);
            QCoreApplication::postEvent(new CountingPart(&wizard, events),
                                        new QEvent(QEvent::User));
        }
        QCOMPARE(events, 0);
    }
};

QTEST_MAIN(WizardFrameTest)
#include "wizard_frame_test.moc"
