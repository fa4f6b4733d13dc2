// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "wizards/file_type_expressions.h"

#include <QStringList>

namespace wizards {

namespace {

const FileKind selectable[] = {
    {&FileTypes::documents, QLatin1String("checkDocuments"), QLatin1String("doc"),
     QLatin1String("accdb|accde|accdr|accdt|csv|doc|docm|docx|dot|dotm|dotx|htm|html|mht|mpp|mppx|"
                   "one|pdf|potm|potx|ppam|pps|ppsm|ppsx|ppt|pptm|pptx|ps|rtf|txt|vsd|wpd|wpg|wps|"
                   "xlam|xlc|xls|xlsb|xlsm|xlsx|xlt|xltm|xltx")},
    {&FileTypes::music, QLatin1String("checkMusic"), QLatin1String("mp3"),
     QLatin1String("a3c|aac|aif|aifc|aiff|ape|flac|itl|m3u|m4a|m4p|mid|midi|mp1|mp2|mp3|mp4|pls|ra|"
                   "ram|rm|rmi|s3m|wav|wma|wpl|xm")},
    {&FileTypes::pictures, QLatin1String("checkPictures"), QLatin1String("jpg"),
     QLatin1String("ai|bmp|cdr|dib|eps|gif|icb|indd|j2c|j2k|jfif|jp2|jpc|jpe|jpeg|jpf|jpg|jpx|kdc|"
                   "pcd|pct|pdd|pict|png|psd|psp|pxr|raw|rle|sct|tga|tif|tiff|vda|vst|wmf")},
    {&FileTypes::video, QLatin1String("checkVideo"), QLatin1String("mpg"),
     QLatin1String("asf|avi|dv|flv|m1v|m2p|m2v|m4v|moov|mov|mpa|mpe|mpeg|mpg|mpv|ogm|omf|qt|swf|"
                   "vdo|vob|wm|wmd|wmv|wmx")},
    {&FileTypes::email, QLatin1String("checkEmail"), QLatin1String("pst"),
     QLatin1String("MsMessageStore|dbx|eml|fol|mbx|mif|msb|msf|msg|nsf|pst|rwz|snm"), true},
};

const FileKind rejectable[] = {
    {&FileTypes::temporary, QLatin1String("checkTempFiles"), QLatin1String("tmp"),
     QLatin1String("|tmp|swp")},
    {&FileTypes::backup, QLatin1String("checkBakFiles"), QLatin1String("bak"),
     QLatin1String("|bak")},
};

const QLatin1Char bar('|');
const QLatin1String customMarker("CustomFileExtensions");
constexpr int patternsInALine = 10;

QString customAlternatives(const QString& extensions) {
    return customMarker + bar + extensions;
}

void append(std::vector<FileTypeExpression>& to, const QString& alternatives, bool inclusion) {
    if (!alternatives.isEmpty())
        to.push_back({QLatin1String(".*\\.(") + alternatives + QLatin1Char(')'), inclusion});
}

/// A trailing bar would select every file whose name ends in a dot.
QString withoutTrailingBars(const QString& typed) {
    QString text = typed.trimmed();
    while (text.endsWith(bar)) {
        text.chop(1);
        text = text.trimmed();
    }
    return text;
}

QString rejectedAlternatives(const FileTypes& types) {
    QString alternatives;
    for (const FileKind& kind : rejectable)
        if (types.*kind.chosen)
            alternatives += kind.alternatives;
    const QString custom = types.excludedExtensions.trimmed();
    if (types.excluded && !custom.isEmpty())
        alternatives += bar + customAlternatives(custom);
    return alternatives;
}

QStringList patternList(const FileKind& kind) {
    QStringList all;
    for (const QString& extension : QString(kind.alternatives).split(bar))
        all += QLatin1String("*.") + extension;
    return all;
}

QString inLines(const QStringList& all) {
    QStringList lines;
    for (int first = 0; first < all.size(); first += patternsInALine)
        lines += all.mid(first, patternsInALine).join(QLatin1String(", "));
    return lines.join(QLatin1String(",\n"));
}

} // namespace

std::span<const FileKind> selectableKinds() {
    return selectable;
}

std::span<const FileKind> rejectableKinds() {
    return rejectable;
}

QString patternsOf(const FileKind& kind) {
    const QStringList all = patternList(kind);
    if (!kind.breaksLines)
        return inLines(all);
    return QLatin1String("<html><body><p>") + all.join(QLatin1String(", ")) +
           QLatin1String("</p></body></html>");
}

std::vector<FileTypeExpression> expressionsOf(const FileTypes& types) {
    std::vector<FileTypeExpression> all;
    if (types.everything) {
        append(all, rejectedAlternatives(types), false);
        return all;
    }
    for (const FileKind& kind : selectable)
        if (types.*kind.chosen)
            append(all, kind.alternatives, true);
    const QString custom = withoutTrailingBars(types.customExtensions);
    if (types.custom && !custom.isEmpty())
        append(all, customAlternatives(custom), true);
    return all;
}

ReadExpression readExpression(const QString& expression) {
    const int marker = expression.indexOf(customMarker);
    if (marker < 0)
        return {expression, std::nullopt};
    // A bar follows the marker, and the filter's closing bracket follows the extensions.
    QString custom = expression.mid(marker + customMarker.size() + 1);
    custom.chop(1);
    return {expression.left(marker), custom};
}

void readKinds(const QString& kinds, FileTypes& types) {
    for (const FileKind& kind : selectable)
        types.*kind.chosen = kinds.contains(kind.sign);
    for (const FileKind& kind : rejectable)
        types.*kind.chosen = kinds.contains(kind.sign);
}

} // namespace wizards
