// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
// A contrast theme, which Windows hands to programs as its system colours, with a large font.
#include <array>
#include <cwchar>

#include <QLabel>
#include <QMenu>
#include <QTest>
#include <QToolTip>

#include <windows.h>

#include "app/start_up.h"
#include "ui/readable_colour.h"

namespace {

/// Those of "High Contrast Black" that Qt reads, for as long as it lives.
class ContrastTheme {
public:
    ContrastTheme() {
        for (std::size_t index = 0; index < elements.size(); ++index)
            before_[index] = GetSysColor(elements[index]);
        SetSysColors(int(elements.size()), elements.data(), colours.data());
    }
    ContrastTheme(const ContrastTheme&) = delete;
    ContrastTheme& operator=(const ContrastTheme&) = delete;
    ~ContrastTheme() { SetSysColors(int(elements.size()), elements.data(), before_.data()); }

private:
    static constexpr std::array elements{
        COLOR_WINDOW,    COLOR_WINDOWTEXT, COLOR_BTNFACE,     COLOR_BTNTEXT,   COLOR_BTNHIGHLIGHT,
        COLOR_BTNSHADOW, COLOR_3DLIGHT,    COLOR_3DDKSHADOW,  COLOR_HIGHLIGHT, COLOR_HIGHLIGHTTEXT,
        COLOR_MENU,      COLOR_MENUTEXT,   COLOR_MENUHILIGHT, COLOR_INFOBK,    COLOR_INFOTEXT,
        COLOR_MENUBAR,   COLOR_GRAYTEXT};
    static constexpr COLORREF black = RGB(0, 0, 0);
    static constexpr COLORREF white = RGB(255, 255, 255);
    static constexpr COLORREF cyan = RGB(26, 235, 255);
    static constexpr std::array<COLORREF, elements.size()> colours{black,
                                                                   white,
                                                                   black,
                                                                   white,
                                                                   RGB(192, 192, 192),
                                                                   RGB(128, 128, 128),
                                                                   white,
                                                                   white,
                                                                   cyan,
                                                                   black,
                                                                   black,
                                                                   white,
                                                                   cyan,
                                                                   black,
                                                                   RGB(255, 255, 0),
                                                                   black,
                                                                   RGB(63, 242, 63)};

    std::array<COLORREF, elements.size()> before_{};
};

/// "DejaVu Serif" in 15 points as the font of message boxes, for as long as it lives.
class LargeMessageFont {
public:
    LargeMessageFont() {
        before_.cbSize = sizeof before_;
        apply(SPI_GETNONCLIENTMETRICS, before_);
        NONCLIENTMETRICSW large = before_;
        large.lfMessageFont.lfHeight = -20; // pixels at 96 dpi
        std::wcscpy(large.lfMessageFont.lfFaceName, L"DejaVu Serif");
        apply(SPI_SETNONCLIENTMETRICS, large);
    }
    LargeMessageFont(const LargeMessageFont&) = delete;
    LargeMessageFont& operator=(const LargeMessageFont&) = delete;
    ~LargeMessageFont() { apply(SPI_SETNONCLIENTMETRICS, before_); }

private:
    static void apply(UINT action, NONCLIENTMETRICSW& metrics) {
        SystemParametersInfoW(action, sizeof metrics, &metrics, 0);
    }

    NONCLIENTMETRICSW before_{};
};

} // namespace

class ContrastThemeTest : public QObject {
    Q_OBJECT
private slots:
    void theStyleIsTheOneOfWindows() {
        QCOMPARE(QApplication::style()->objectName(), QStringLiteral("windowsvista"));
    }

    void labelsHaveTheFontOfMessages() {
        const QLabel label;
        QCOMPARE(label.font().family(), QStringLiteral("DejaVu Serif"));
        QCOMPARE(label.font().pointSize(), 15);
    }

    void everyTextIsReadable_data() {
        QTest::addColumn<QPalette>("palette");
        QTest::addColumn<QPalette::ColorRole>("text");
        QTest::addColumn<QPalette::ColorRole>("background");
        const QMenu menu;
        const QPalette program = QApplication::palette();
        QTest::newRow("window") << program << QPalette::WindowText << QPalette::Window;
        QTest::newRow("button") << program << QPalette::ButtonText << QPalette::Button;
        QTest::newRow("field") << program << QPalette::Text << QPalette::Base;
        QTest::newRow("every other row") << program << QPalette::Text << QPalette::AlternateBase;
        QTest::newRow("selection") << program << QPalette::HighlightedText << QPalette::Highlight;
        QTest::newRow("link") << program << QPalette::Link << QPalette::Window;
        QTest::newRow("visited link") << program << QPalette::LinkVisited << QPalette::Window;
        QTest::newRow("notice") << program << QPalette::ToolTipText << QPalette::ToolTipBase;
        QTest::newRow("menu") << menu.palette() << QPalette::ButtonText << QPalette::Button;
        QTest::newRow("tool tip") << QToolTip::palette() << QPalette::ToolTipText
                                  << QPalette::ToolTipBase;
    }
    void everyTextIsReadable() {
        QFETCH(QPalette, palette);
        QFETCH(QPalette::ColorRole, text);
        QFETCH(QPalette::ColorRole, background);
        QVERIFY(ui::isDark(palette));
        QVERIFY(ui::contrast(palette.color(text), palette.color(background)) >=
                ui::readableContrast);
        QVERIFY(palette.color(QPalette::Disabled, text) !=
                palette.color(QPalette::Disabled, background));
    }
};

int main(int argc, char** argv) {
    // The offscreen platform doesn't read the system's colours.
    qputenv("QT_QPA_PLATFORM", "windows");
    const ContrastTheme theme;
    const LargeMessageFont font;
    app::prepareToolkit();
    QApplication application(argc, argv);
    app::adjustToolkit(application);
    ContrastThemeTest test;
    return QTest::qExec(&test, argc, argv);
}
#include "contrast_theme_test.moc"
