// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
// Takes a picture of every screen of the program, or writes the page that shows them all:
//   take_pictures <folder> [<translation file>|pseudo]
//   take_pictures --index <folder of the English ones> <folder of the German ones> >docs/tour.md
// The look depends on the display, on QT_SCALE_FACTOR and on TARN_LOOK; see tools/pictures.
#include <cstdio>

#include <QApplication>
#include <QDataStream>
#include <QFile>
#include <QTranslator>

#include "app/start_up.h"
#include "resources/pictures.h"
#include "tests/support/gui_palettes.h"
#include "tests/tour/album.h"
#include "tests/tour/catalogue.h"
#include "tests/tour/pseudo_language.h"
#include "tests/tour/stories.h"
#include "ui/screen_fit.h"

namespace {

constexpr char titlesFile[] = "titles";

using Titles = QMap<QString, QString>;

void writeTitles(const QDir& folder, const Titles& titles) {
    QFile file(folder.filePath(QLatin1String(titlesFile)));
    if (!file.open(QIODevice::WriteOnly))
        qFatal("Can't write %s", qPrintable(file.fileName()));
    QDataStream stream(&file);
    stream << titles;
}

Titles readTitles(const QDir& folder) {
    QFile file(folder.filePath(QLatin1String(titlesFile)));
    if (!file.open(QIODevice::ReadOnly))
        qFatal("Can't read %s", qPrintable(file.fileName()));
    Titles titles;
    QDataStream stream(&file);
    stream >> titles;
    return titles;
}

void writeScreen(const tour::Screen& screen, const Titles& english, const Titles& german) {
    const QString name = QLatin1String(screen.name);
    std::printf("**%s**\n\n| English | Deutsch |\n|---|---|\n", screen.title);
    if (!english[name].isEmpty())
        std::printf("| %s | %s |\n", qUtf8Printable(english[name]), qUtf8Printable(german[name]));
    std::printf("| ![](tour/en/%s.png) | ![](tour/de/%s.png) |\n\n", screen.name, screen.name);
}

void writeTableOfScreens() {
    std::puts("## Screens\n\n| Screen | Class | Form |\n|---|---|---|");
    for (const tour::Chapter& chapter : tour::catalogue())
        if (*chapter.className)
            std::printf("| %s | `%s` | [%s](../%s) |\n", chapter.title, chapter.className,
                        chapter.file, chapter.file);
    std::puts("");
}

void writeLooks() {
    std::puts("## On other desktops\n\n"
              "A dark desktop, and screens at 150 and at 200 %. "
              "`tools/pictures --scale 1.5 --look dark FOLDER`\ntakes every screen so.\n");
    for (const char* look : {"dark", "150", "200"})
        for (const char* screen : {"main-window", "new-set-items", "login"})
            std::printf("![](tour/%s/%s.png)\n\n", look, screen);
}

void writeIndex(const Titles& english, const Titles& german) {
    std::puts(
        "# Every screen\n\n"
        "All windows, pages, dialogs and boxes, in English and in German. The title of each window "
        "is above its\npicture. `tools/pictures` generates this page and its pictures. The desktop "
        "draws the balloons of the\ntray, so they are not shown here.\n");
    writeTableOfScreens();
    for (const tour::Chapter& chapter : tour::catalogue()) {
        std::printf("## %s\n\nIn [%s](../%s)\n\n", chapter.title, chapter.file, chapter.file);
        for (const tour::Screen& screen : chapter.screens)
            writeScreen(screen, english, german);
    }
    writeLooks();
}

} // namespace

int main(int argc, char** argv) {
    if (argc > 3 && QLatin1String(argv[1]) == QLatin1String("--index")) {
        writeIndex(readTitles(QString::fromLocal8Bit(argv[2])),
                   readTitles(QString::fromLocal8Bit(argv[3])));
        return 0;
    }
    app::prepareToolkit();
    QApplication application(argc, argv);
    app::adjustToolkit(application);
    ui::keepWindowsOnScreen(application);
    support::applyLook();
    resources::initPictures();
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() < 2) {
        std::fputs("Usage: take_pictures <folder> [<translation file>|pseudo]\n"
                   "       take_pictures --index <English folder> <German folder>\n",
                   stderr);
        return 2;
    }
    QTranslator german;
    QString refusal = QStringLiteral("The storage server can't be reached.");
    tour::PseudoLanguage pseudo;
    if (arguments.size() > 2 && arguments.at(2) == QLatin1String("pseudo")) {
        QCoreApplication::installTranslator(&pseudo);
        refusal = tour::PseudoLanguage::textOf(refusal);
    } else if (arguments.size() > 2) {
        const QString none = QLatin1String("");
        if (!german.load(arguments.at(2), none, none, none))
            qFatal("Can't read %s", qPrintable(arguments.at(2)));
        QCoreApplication::installTranslator(&german);
        refusal = QStringLiteral("Der Speicherserver ist nicht erreichbar.");
    }
    // A blinking cursor would be on every other picture.
    QApplication::setCursorFlashTime(0);
    const QDir folder(arguments.at(1));
    tour::Album album(refusal, folder);
    tour::takeAll(album);
    writeTitles(folder, album.titles());
    for (const QString& screen : album.missing())
        std::fprintf(stderr, "No picture of %s\n", qPrintable(screen));
    for (const QString& defect : album.defects())
        std::fprintf(stderr, "%s\n", qPrintable(defect));
    return album.missing().isEmpty() ? 0 : 1;
}
