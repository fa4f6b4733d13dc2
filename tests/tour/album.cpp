// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "tests/tour/album.h"

#include <QApplication>
#include <QFileDialog>
#include <QMessageBox>
#include <QTest>

#include "tests/tour/catalogue.h"
#include "tests/tour/contrast_defects.h"
#include "tests/tour/defects.h"
#include "tests/tour/reader_defects.h"

namespace tour {

namespace {

constexpr int timeToRest = 150;
constexpr int timeToAppear = 2000;

bool shows(const QWidget& widget, const char* className) {
    if (widget.inherits(className))
        return true;
    for (const auto* child : widget.findChildren<QWidget*>())
        if (child->inherits(className) && child->isVisible())
            return true;
    return false;
}

/// A box may appear before its subject is on the screen.
bool isAbout(const QWidget& box, const char* className) {
    if (!box.inherits("QMessageBox") && !box.inherits("QFileDialog") && !box.inherits("QMenu"))
        return false;
    for (const QWidget* widget : QApplication::allWidgets())
        if (widget->inherits(className))
            return true;
    return false;
}

QStringList textsOf(QWidget& dialog) {
    if (auto* box = qobject_cast<QMessageBox*>(&dialog))
        return {box->windowTitle(), box->text()};
    if (auto* files = qobject_cast<QFileDialog*>(&dialog))
        return QStringList(files->windowTitle()) + files->nameFilters();
    return {};
}

} // namespace

Album::Album(QString refusal, std::optional<QDir> folder)
    : refusal_(std::move(refusal))
    , folder_(std::move(folder)) {}

void Album::take(QWidget& shown, const char* screen) {
    const QString name = QString::fromLatin1(screen);
    const char* className = chapterOf(screen).className;
    if (*className && !shows(shown, className) && !isAbout(shown, className))
        qFatal("%s shows no %s but \"%s\"", screen, className, qPrintable(shown.windowTitle()));
    if (taken_.contains(name))
        qFatal("There are two pictures of %s", screen);
    taken_ << name;
    shown.activateWindow();
    // One layout may trigger another.
    for (int i = 0; i < 3; ++i)
        QCoreApplication::processEvents();
    if (!QTest::qWaitForWindowExposed(shown.window(), timeToAppear))
        defects_ << name + QStringLiteral(": isn't on the screen");
    boxTexts_ << textsOf(shown);
    titles_[name] = shown.windowTitle();
    seenTexts_[name] = tour::seenTexts(shown);
    const QStringList others = otherDefectsOf_ ? otherDefectsOf_(shown) : QStringList();
    for (const QString& defect :
         defectsOf(shown) + readerDefectsOf(shown) + contrastDefectsOf(shown) + others)
        defects_ << name + QStringLiteral(": ") + defect;
    // Waits for late changes, so that the picture shows them.
    if (folder_)
        QTest::qWait(timeToRest);
    const QPixmap picture = shown.grab();
    if (picture.isNull())
        qFatal("%s has no picture", screen);
    if (!folder_)
        return;
    const QString path = folder_->filePath(name + QStringLiteral(".png"));
    if (!picture.save(path))
        qFatal("Can't write %s", qPrintable(path));
}

QStringList Album::missing() const {
    QStringList names;
    for (const Chapter& chapter : catalogue())
        for (const Screen& screen : chapter.screens)
            if (!taken_.contains(QLatin1String(screen.name)))
                names << QLatin1String(screen.name);
    return names;
}

} // namespace tour
