// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "wizards/file_type_expressions.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

// Next to the type, where GoogleTest looks for it.
inline void PrintTo(const QString& text, std::ostream* out) {
    *out << '"' << text.toStdString() << '"';
}

namespace wizards {

void PrintTo(const FileTypeExpression& filter, std::ostream* out) {
    *out << (filter.inclusion ? "+ " : "- ") << filter.expression.toStdString();
}

} // namespace wizards

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using wizards::FileTypeExpression;
using wizards::FileTypes;
using wizards::ReadExpression;

constexpr const char* documentsExpression =
    ".*\\.(accdb|accde|accdr|accdt|csv|doc|docm|docx|dot|dotm|dotx|htm|html|mht|mpp|mppx|one|pdf|"
    "potm|potx|ppam|pps|ppsm|ppsx|ppt|pptm|pptx|ps|rtf|txt|vsd|wpd|wpg|wps|xlam|xlc|xls|xlsb|xlsm|"
    "xlsx|xlt|xltm|xltx)";
constexpr const char* videoExpression =
    ".*\\.(asf|avi|dv|flv|m1v|m2p|m2v|m4v|moov|mov|mpa|mpe|mpeg|mpg|mpv|"
    "ogm|omf|qt|swf|vdo|vob|wm|wmd|wmv|wmx)";
constexpr const char* picturesExpression =
    ".*\\.(ai|bmp|cdr|dib|eps|gif|icb|indd|j2c|j2k|jfif|jp2|jpc|jpe|jpeg|jpf|jpg|jpx|kdc|pcd|pct|"
    "pdd|pict|png|psd|psp|pxr|raw|rle|sct|tga|tif|tiff|vda|vst|wmf)";
constexpr const char* musicExpression =
    ".*\\.(a3c|aac|aif|aifc|aiff|ape|flac|itl|m3u|m4a|m4p|mid|midi|mp1|mp2|mp3|mp4|pls|ra|ram|rm|"
    "rmi|s3m|wav|wma|wpl|xm)";
constexpr const char* emailExpression =
    ".*\\.(MsMessageStore|dbx|eml|fol|mbx|mif|msb|msf|msg|nsf|pst|rwz|snm)";

QString text(const char* utf8) {
    return QString::fromUtf8(utf8);
}

FileTypeExpression selects(const char* expression) {
    return {text(expression), true};
}

FileTypeExpression rejects(const char* expression) {
    return {text(expression), false};
}

TEST(ExpressionsOf, EachKindIsOneFilter) {
    FileTypes types;
    types.documents = true;
    EXPECT_THAT(wizards::expressionsOf(types), ElementsAre(selects(documentsExpression)));
    types = {};
    types.video = true;
    EXPECT_THAT(wizards::expressionsOf(types), ElementsAre(selects(videoExpression)));
    types = {};
    types.pictures = true;
    EXPECT_THAT(wizards::expressionsOf(types), ElementsAre(selects(picturesExpression)));
    types = {};
    types.music = true;
    EXPECT_THAT(wizards::expressionsOf(types), ElementsAre(selects(musicExpression)));
    types = {};
    types.email = true;
    EXPECT_THAT(wizards::expressionsOf(types), ElementsAre(selects(emailExpression)));
}

TEST(ExpressionsOf, TheKindsHaveAnOrder) {
    FileTypes types{.documents = true,
                    .video = true,
                    .pictures = true,
                    .music = true,
                    .email = true,
                    .custom = true,
                    .customExtensions = text("abc")};
    EXPECT_THAT(wizards::expressionsOf(types),
                ElementsAre(selects(documentsExpression), selects(musicExpression),
                            selects(picturesExpression), selects(videoExpression),
                            selects(emailExpression), selects(".*\\.(CustomFileExtensions|abc)")));
}

TEST(ExpressionsOf, MusicWithExtensionsOfTheUser) {
    const FileTypes types{.music = true, .custom = true, .customExtensions = text("abc|def")};
    EXPECT_THAT(
        wizards::expressionsOf(types),
        ElementsAre(selects(musicExpression), selects(".*\\.(CustomFileExtensions|abc|def)")));
}

TEST(ExpressionsOf, EverythingNeedsNoFilter) {
    EXPECT_THAT(wizards::expressionsOf({.everything = true}), IsEmpty());
}

TEST(ExpressionsOf, WhatIsLeftOutOfEverythingIsOneFilter) {
    FileTypes types{.everything = true, .temporary = true, .backup = true};
    EXPECT_THAT(wizards::expressionsOf(types), ElementsAre(rejects(".*\\.(|tmp|swp|bak)")));
    types.backup = false;
    EXPECT_THAT(wizards::expressionsOf(types), ElementsAre(rejects(".*\\.(|tmp|swp)")));
    types = {.everything = true, .backup = true};
    EXPECT_THAT(wizards::expressionsOf(types), ElementsAre(rejects(".*\\.(|bak)")));
    types.excluded = true;
    types.excludedExtensions = text("abc|def");
    EXPECT_THAT(wizards::expressionsOf(types),
                ElementsAre(rejects(".*\\.(|bak|CustomFileExtensions|abc|def)")));
    types.backup = false;
    EXPECT_THAT(wizards::expressionsOf(types),
                ElementsAre(rejects(".*\\.(|CustomFileExtensions|abc|def)")));
}

TEST(ExpressionsOf, EverythingIgnoresTheKinds) {
    EXPECT_THAT(wizards::expressionsOf({.everything = true,
                                        .documents = true,
                                        .custom = true,
                                        .customExtensions = text("abc")}),
                IsEmpty());
}

TEST(ExpressionsOf, KindsIgnoreWhatIsLeftOutOfEverything) {
    EXPECT_THAT(wizards::expressionsOf({.music = true,
                                        .temporary = true,
                                        .backup = true,
                                        .excluded = true,
                                        .excludedExtensions = text("abc")}),
                ElementsAre(selects(musicExpression)));
}

TEST(ExpressionsOf, ExtensionsBehindAnUncheckedBoxDontCount) {
    EXPECT_THAT(wizards::expressionsOf({.customExtensions = text("abc")}), IsEmpty());
    EXPECT_THAT(wizards::expressionsOf({.everything = true, .excludedExtensions = text("abc")}),
                IsEmpty());
}

TEST(ExpressionsOf, TrailingBarsOfSelectedExtensionsGo) {
    for (const char* typed : {"abc|def", "abc|def|", " abc|def | | ", "abc|def||| "})
        EXPECT_THAT(wizards::expressionsOf({.custom = true, .customExtensions = text(typed)}),
                    ElementsAre(selects(".*\\.(CustomFileExtensions|abc|def)")))
            << typed;
}

TEST(ExpressionsOf, TrailingBarsOfRejectedExtensionsStay) {
    EXPECT_THAT(wizards::expressionsOf(
                    {.everything = true, .excluded = true, .excludedExtensions = text(" abc| ")}),
                ElementsAre(rejects(".*\\.(|CustomFileExtensions|abc|)")));
}

TEST(ExpressionsOf, NothingButBarsAndBlanksIsNothing) {
    for (const char* typed : {"", "  ", "|", " | | "})
        EXPECT_THAT(wizards::expressionsOf({.custom = true, .customExtensions = text(typed)}),
                    IsEmpty())
            << typed;
    EXPECT_THAT(wizards::expressionsOf(
                    {.everything = true, .excluded = true, .excludedExtensions = text("  ")}),
                IsEmpty());
}

TEST(ReadExpression, WithoutTheMarkerAllOfItReportsKinds) {
    const ReadExpression read = wizards::readExpression(text(musicExpression));
    EXPECT_EQ(read.kinds, text(musicExpression));
    EXPECT_EQ(read.custom, std::nullopt);
}

TEST(ReadExpression, TheUsersExtensionsStandBehindTheMarker) {
    const ReadExpression read =
        wizards::readExpression(text(".*\\.(CustomFileExtensions|abc|def)"));
    EXPECT_EQ(read.kinds, text(".*\\.("));
    EXPECT_EQ(read.custom, text("abc|def"));
}

TEST(ReadExpression, KindsStandBeforeTheMarker) {
    const ReadExpression read =
        wizards::readExpression(text(".*\\.(|tmp|swp|bak|CustomFileExtensions|abc)"));
    EXPECT_EQ(read.kinds, text(".*\\.(|tmp|swp|bak|"));
    EXPECT_EQ(read.custom, text("abc"));
}

TEST(ReadExpression, TheMarkerHasItsCase) {
    const ReadExpression read = wizards::readExpression(text(".*\\.(customfileextensions|abc)"));
    EXPECT_EQ(read.custom, std::nullopt);
}

TEST(ReadExpression, ForeignExpressionsAreReadWithoutHarm) {
    const auto custom = [](const char* expression) {
        return wizards::readExpression(text(expression)).custom;
    };
    EXPECT_EQ(custom(""), std::nullopt);
    EXPECT_EQ(custom("CustomFileExtensions"), QString());
    EXPECT_EQ(custom("CustomFileExtensions|"), QString());
    EXPECT_EQ(custom("CustomFileExtensions|)"), QString());
    EXPECT_EQ(custom(".*\\.(CustomFileExtensions)"), QString());
    EXPECT_EQ(custom("((((CustomFileExtensions|a"), QString());
    EXPECT_EQ(custom("CustomFileExtensions|CustomFileExtensions|x)"),
              text("CustomFileExtensions|x"));
}

TEST(ReadExpression, TextOfAnyKindSurvives) {
    const QString extensions = text("\xC3\xA4\xC3\xB6|\xE6\x96\x87|x y");
    const auto filters = wizards::expressionsOf(
        {.everything = true, .excluded = true, .excludedExtensions = extensions});
    ASSERT_EQ(filters.size(), 1U);
    EXPECT_EQ(wizards::readExpression(filters.front().expression).custom, extensions);
}

TEST(ReadExpression, ALongTextSurvives) {
    const QString extensions = QString(100000, QLatin1Char('x'));
    const QString expression = text(".*\\.(CustomFileExtensions|") + extensions + text(")");
    EXPECT_EQ(wizards::readExpression(expression).custom, extensions);
}

FileTypes kindsOf(const char* kinds) {
    FileTypes types;
    wizards::readKinds(text(kinds), types);
    return types;
}

std::string namesOf(const FileTypes& types) {
    std::string names;
    for (const auto& [chosen, name] : {std::pair{types.documents, "D"},
                                       {types.video, "V"},
                                       {types.pictures, "P"},
                                       {types.music, "M"},
                                       {types.email, "E"},
                                       {types.temporary, "t"},
                                       {types.backup, "b"}})
        if (chosen)
            names += name;
    return names;
}

TEST(ReadKinds, EachKindIsRecognisedAlone) {
    EXPECT_EQ(namesOf(kindsOf(documentsExpression)), "D");
    EXPECT_EQ(namesOf(kindsOf(videoExpression)), "V");
    EXPECT_EQ(namesOf(kindsOf(picturesExpression)), "P");
    EXPECT_EQ(namesOf(kindsOf(musicExpression)), "M");
    EXPECT_EQ(namesOf(kindsOf(emailExpression)), "E");
    EXPECT_EQ(namesOf(kindsOf(".*\\.(|tmp|swp)")), "t");
    EXPECT_EQ(namesOf(kindsOf(".*\\.(|bak)")), "b");
    EXPECT_EQ(namesOf(kindsOf(".*\\.(|tmp|swp|bak)")), "tb");
}

TEST(ReadKinds, OneExtensionIsEnoughAndHasItsCase) {
    EXPECT_EQ(namesOf(kindsOf("doc")), "D");
    EXPECT_EQ(namesOf(kindsOf("mpg")), "V");
    EXPECT_EQ(namesOf(kindsOf("jpg")), "P");
    EXPECT_EQ(namesOf(kindsOf("mp3")), "M");
    EXPECT_EQ(namesOf(kindsOf("pst")), "E");
    EXPECT_EQ(namesOf(kindsOf("tmp")), "t");
    EXPECT_EQ(namesOf(kindsOf("bak")), "b");
    EXPECT_EQ(namesOf(kindsOf("DOC MPG JPG MP3 PST TMP BAK")), "");
}

TEST(ReadKinds, LettersInsideOtherWordsCount) {
    EXPECT_EQ(namesOf(kindsOf(".*\\.(docs-of-mine|bakery)")), "Db");
}

TEST(ReadKinds, NothingIsNoKind) {
    EXPECT_EQ(namesOf(kindsOf("")), "");
}

TEST(ReadKinds, WhatWasSetIsTakenBack) {
    FileTypes types{.documents = true, .video = true, .temporary = true};
    wizards::readKinds(text("mp3"), types);
    EXPECT_EQ(namesOf(types), "M");
}

TEST(ReadKinds, ExtensionsOfTheUserTurnNoKindOn) {
    const ReadExpression read =
        wizards::readExpression(text(".*\\.(CustomFileExtensions|doc|mpg|jpg|mp3|pst|tmp|bak)"));
    EXPECT_EQ(namesOf(kindsOf(read.kinds.toUtf8().constData())), "");
}

/// The patterns of the kind with this check box.
QString patternsOf(const char* box) {
    for (const wizards::FileKind& kind : wizards::selectableKinds())
        if (kind.box == QLatin1String(box))
            return wizards::patternsOf(kind);
    ADD_FAILURE() << "No kind has the box " << box;
    return {};
}

TEST(Patterns, NameTheExtensionsInTheirOrder) {
    EXPECT_EQ(patternsOf("checkVideo"),
              text("*.asf, *.avi, *.dv, *.flv, *.m1v, *.m2p, *.m2v, *.m4v, *.moov, *.mov,\n"
                   "*.mpa, *.mpe, *.mpeg, *.mpg, *.mpv, *.ogm, *.omf, *.qt, *.swf, *.vdo,\n"
                   "*.vob, *.wm, *.wmd, *.wmv, *.wmx"));
    EXPECT_EQ(patternsOf("checkEmail"),
              text("<html><body><p>*.MsMessageStore, *.dbx, *.eml, *.fol, *.mbx, *.mif, *.msb, "
                   "*.msf, *.msg, *.nsf, *.pst, *.rwz, *.snm</p></body></html>"));
}

/// The extensions in a tool tip, joined as in an expression.
std::string extensionsIn(QString patterns) {
    patterns.remove(QLatin1String("*."));
    patterns.replace(QLatin1String(",\n"), QLatin1String("|"));
    patterns.replace(QLatin1String(", "), QLatin1String("|"));
    return ".*\\.(" + patterns.toStdString() + ")";
}

TEST(Patterns, AreThoseOfTheFilters) {
    EXPECT_EQ(extensionsIn(patternsOf("checkDocuments")), documentsExpression);
    EXPECT_EQ(extensionsIn(patternsOf("checkVideo")), videoExpression);
    EXPECT_EQ(extensionsIn(patternsOf("checkPictures")), picturesExpression);
    EXPECT_EQ(extensionsIn(patternsOf("checkMusic")), musicExpression);
}

} // namespace
