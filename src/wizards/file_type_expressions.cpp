// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "wizards/file_type_expressions.h"

#include <QStringList>

namespace wizards {

namespace {

/// A kind of file.
struct Kind {
    QLatin1String alternatives;
    QLatin1String sign; ///< the extension by which it is recognised
    bool FileTypes::*chosen;
};

const Kind kDocuments{
    QLatin1String("accdb|accde|accdr|accdt|csv|doc|docm|docx|dot|dotm|dotx|htm|html|mht|mpp|mppx|"
                  "one|pdf|potm|potx|ppam|pps|ppsm|ppsx|ppt|pptm|pptx|ps|rtf|txt|vsd|wpd|wpg|wps|"
                  "xlam|xlc|xls|xlsb|xlsm|xlsx|xlt|xltm|xltx"),
    QLatin1String("doc"), &FileTypes::documents};
const Kind kMusic{
    QLatin1String("a3c|aac|aif|aifc|aiff|ape|flac|itl|m3u|m4a|m4p|mid|midi|mp1|mp2|mp3|mp4|pls|ra|"
                  "ram|rm|rmi|s3m|wav|wma|wpl|xm"),
    QLatin1String("mp3"), &FileTypes::music};
const Kind kPictures{
    QLatin1String("ai|bmp|cdr|dib|eps|gif|icb|indd|j2c|j2k|jfif|jp2|jpc|jpe|jpeg|jpf|jpg|jpx|kdc|"
                  "pcd|pct|pdd|pict|png|psd|psp|pxr|raw|rle|sct|tga|tif|tiff|vda|vst|wmf"),
    QLatin1String("jpg"), &FileTypes::pictures};
const Kind kVideo{
    QLatin1String("asf|avi|dv|flv|m1v|m2p|m2v|m4v|moov|mov|mpa|mpe|mpeg|mpg|mpv|ogm|omf|qt|swf|"
                  "vdo|vob|wm|wmd|wmv|wmx"),
    QLatin1String("mpg"), &FileTypes::video};
const Kind kEmail{QLatin1String("MsMessageStore|dbx|eml|fol|mbx|mif|msb|msf|msg|nsf|pst|rwz|snm"),
                  QLatin1String("pst"), &FileTypes::email};

// With the bar that parts them from what stands before, which may be nothing.
const Kind kTemporary{QLatin1String("|tmp|swp"), QLatin1String("tmp"), &FileTypes::temporary};
const Kind kBackup{QLatin1String("|bak"), QLatin1String("bak"), &FileTypes::backup};

// In the order in which they are written.
const Kind* const kIncluded[] = {&kDocuments, &kMusic, &kPictures, &kVideo, &kEmail};
const Kind* const kExcluded[] = {&kTemporary, &kBackup};

const QLatin1Char kBar('|');
const QLatin1String kCustomMarker("CustomFileExtensions");
constexpr int kPatternsInALine = 10;

QString customAlternatives(const QString& extensions) {
    return kCustomMarker + kBar + extensions;
}

void append(std::vector<FileTypeExpression>& to, const QString& alternatives, bool inclusion) {
    if (!alternatives.isEmpty())
        to.push_back({QLatin1String(".*\\.(") + alternatives + QLatin1Char(')'), inclusion});
}

/// A bar that nothing follows would select every file whose name ends in a dot.
QString withoutTrailingBars(const QString& typed) {
    QString text = typed.trimmed();
    while (text.endsWith(kBar)) {
        text.chop(1);
        text = text.trimmed();
    }
    return text;
}

QString rejectedAlternatives(const FileTypes& types) {
    QString alternatives;
    for (const Kind* kind : kExcluded)
        if (types.*kind->chosen)
            alternatives += kind->alternatives;
    const QString custom = types.excludedExtensions.trimmed();
    if (types.excluded && !custom.isEmpty())
        alternatives += kBar + customAlternatives(custom);
    return alternatives;
}

QStringList patterns(const Kind& kind) {
    QStringList all;
    for (const QString& extension : QString(kind.alternatives).split(kBar))
        all += QLatin1String("*.") + extension;
    return all;
}

QString inLines(const Kind& kind) {
    const QStringList all = patterns(kind);
    QStringList lines;
    for (int first = 0; first < all.size(); first += kPatternsInALine)
        lines += all.mid(first, kPatternsInALine).join(QLatin1String(", "));
    return lines.join(QLatin1String(",\n"));
}

} // namespace

std::vector<FileTypeExpression> expressionsOf(const FileTypes& types) {
    std::vector<FileTypeExpression> all;
    if (types.everything) {
        append(all, rejectedAlternatives(types), false);
        return all;
    }
    for (const Kind* kind : kIncluded)
        if (types.*kind->chosen)
            append(all, kind->alternatives, true);
    const QString custom = withoutTrailingBars(types.customExtensions);
    if (types.custom && !custom.isEmpty())
        append(all, customAlternatives(custom), true);
    return all;
}

ReadExpression readExpression(const QString& expression) {
    const int marker = expression.indexOf(kCustomMarker);
    if (marker < 0)
        return {expression, std::nullopt};
    // The marker is followed by a bar, and the extensions by the bracket that closes the filter.
    QString custom = expression.mid(marker + kCustomMarker.size() + 1);
    custom.chop(1);
    return {expression.left(marker), custom};
}

void readKinds(const QString& kinds, FileTypes& types) {
    for (const Kind* kind : kIncluded)
        types.*kind->chosen = kinds.contains(kind->sign);
    for (const Kind* kind : kExcluded)
        types.*kind->chosen = kinds.contains(kind->sign);
}

QString documentPatterns() {
    return inLines(kDocuments);
}

QString videoPatterns() {
    return inLines(kVideo);
}

QString picturePatterns() {
    return inLines(kPictures);
}

QString musicPatterns() {
    return inLines(kMusic);
}

QString emailPatterns() {
    return QLatin1String("<html><body><p>") + patterns(kEmail).join(QLatin1String(", ")) +
           QLatin1String("</p></body></html>");
}

} // namespace wizards
