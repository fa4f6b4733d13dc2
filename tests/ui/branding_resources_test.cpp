// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include <list>
#include <memory>

#include <QBuffer>
#include <QDir>
#include <QFile>
#include <QImage>
#include <QTemporaryDir>
#include <QtEndian>
#include <QtTest>

#include <zip.h>

#include "resources/pictures.h"
#include "ui/branding_resources.h"
#include "ui/zip_reader.h"

namespace {

constexpr QSize iconSize(64, 64);
constexpr QSize logoSize(280, 50);
const char* const archiveName = "resources.zip";

/// Writes a test's archive in the current directory.
class Archive {
public:
    Archive()
        : archive_(zip_open(archiveName, ZIP_CREATE | ZIP_TRUNCATE, nullptr)) {}
    ~Archive() {
        if (zip_close(archive_) != 0)
            qFatal("The archive can't be written: %s", zip_strerror(archive_));
    }

    Archive& add(const char* name, const QByteArray& bytes) {
        contents_.push_back(bytes);
        const QByteArray& kept = contents_.back();
        zip_file_add(archive_, name,
                     zip_source_buffer(archive_, kept.constData(),
                                       static_cast<zip_uint64_t>(kept.size()), 0),
                     ZIP_FL_OVERWRITE);
        return *this;
    }

private:
    // A list, as the library only reads the bytes when it closes the archive.
    std::list<QByteArray> contents_;
    zip_t* archive_;
};

QByteArray image(QSize size, Qt::GlobalColor left, Qt::GlobalColor right, const char* format) {
    QImage image(size, QImage::Format_RGB32);
    for (int y = 0; y < size.height(); ++y)
        for (int x = 0; x < size.width(); ++x)
            image.setPixelColor(x, y, x < size.width() / 2 ? left : right);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    if (!image.save(&buffer, format))
        qFatal("No image in the format %s", format);
    return bytes;
}

QByteArray plainImage(Qt::GlobalColor colour, const char* format = "PNG") {
    return image({40, 40}, colour, colour, format);
}

QColor colourAt(const QIcon& icon, QSize size, QPoint at, QIcon::Mode mode = QIcon::Normal) {
    return icon.pixmap(size, mode).toImage().pixelColor(at);
}

ui::BrandingResources loaded() {
    ui::BrandingResources branding;
    branding.load();
    return branding;
}

QImage builtIn(const char* resource) {
    const QPixmap pixmap(QString::fromLatin1(resource));
    if (pixmap.isNull())
        qFatal("There is no %s", resource);
    return pixmap.toImage();
}

void compareWithDefaults(const ui::BrandingResources& branding) {
    QCOMPARE(branding.applicationIcon().pixmap(iconSize).toImage(),
             builtIn(":/icons/tarn_mobile_icon"));
    QCOMPARE(branding.logoIcon().pixmap(logoSize).toImage(), builtIn(":/icons/norvel_logo"));
    QCOMPARE(branding.description(), QStringLiteral("Norvel Inc"));
    QVERIFY(branding.homePageUrl().startsWith(QLatin1String("https://")));
}

} // namespace

class BrandingResourcesTest : public QObject {
    Q_OBJECT
private slots:
    void initTestCase() { resources::initPictures(); }
    void init() {
        directory_ = std::make_unique<QTemporaryDir>();
        QVERIFY(QDir::setCurrent(directory_->path()));
    }

    void withoutAFileTheBuiltInLookCounts();
    void aDamagedArchiveChangesNothing();
    void anEmptyFileChangesNothing();
    void anArchiveWithoutEntriesChangesNothing();
    void aDirectoryOfThatNameChangesNothing();
    void stringsAloneLeaveTheIcons();
    void theIconReplacesTheBuiltInOne();
    void aWideIconIsDistorted();
    void theLogoCountsForBothModes();
    void theFormatIsReadFromTheData();
    void anImageThatIsNoneLeavesTheDefault();
    void anEmptyValueReplacesTheDefault();
    void anotherLoadStartsOver();
    void anEntryAtTheLimitIsRead();
    void aHundredMegabytesOfZerosCountAsMissing();
    void anImageOfTooManyPixelsCountsAsMissing();
    void anEntryWithAWrongChecksumCountsAsMissing();

private:
    std::unique_ptr<QTemporaryDir> directory_;
};

void BrandingResourcesTest::withoutAFileTheBuiltInLookCounts() {
    compareWithDefaults(loaded());
}

void BrandingResourcesTest::aDamagedArchiveChangesNothing() {
    Archive().add("strtable.txt", "DESCRIPTION: x");
    QFile file(QString::fromLatin1(archiveName));
    QVERIFY(file.resize(file.size() / 2));
    compareWithDefaults(loaded());
}

void BrandingResourcesTest::anEmptyFileChangesNothing() {
    QFile file(QString::fromLatin1(archiveName));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.close();
    compareWithDefaults(loaded());
}

void BrandingResourcesTest::anArchiveWithoutEntriesChangesNothing() {
    QFile file(QString::fromLatin1(archiveName));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(QByteArray("PK\5\6") + QByteArray(18, '\0'));
    file.close();
    compareWithDefaults(loaded());
}

void BrandingResourcesTest::aDirectoryOfThatNameChangesNothing() {
    QVERIFY(QDir::current().mkdir(QString::fromLatin1(archiveName)));
    compareWithDefaults(loaded());
}

void BrandingResourcesTest::stringsAloneLeaveTheIcons() {
    Archive().add("strtable.txt", "# ours\nDeScription : A company\nhomepageurl: http://a:81/b\n");
    const ui::BrandingResources branding = loaded();
    QCOMPARE(branding.description(), QStringLiteral("A company"));
    QCOMPARE(branding.homePageUrl(), QStringLiteral("http://a:81/b"));
    QCOMPARE(branding.applicationIcon().pixmap(iconSize).toImage(),
             builtIn(":/icons/tarn_mobile_icon"));
}

void BrandingResourcesTest::theIconReplacesTheBuiltInOne() {
    Archive().add("icon.png", plainImage(Qt::green));
    const QIcon icon = loaded().applicationIcon();
    QCOMPARE(colourAt(icon, iconSize, {32, 32}), QColor(Qt::green));
    QCOMPARE(colourAt(icon, {16, 16}, {8, 8}), QColor(Qt::green));
    QCOMPARE(loaded().description(), QStringLiteral("Norvel Inc"));
}

void BrandingResourcesTest::aWideIconIsDistorted() {
    Archive().add("icon.png", image({256, 32}, Qt::red, Qt::blue, "PNG"));
    const QIcon icon = loaded().applicationIcon();
    QCOMPARE(icon.pixmap(iconSize).size(), iconSize);
    QCOMPARE(colourAt(icon, iconSize, {1, 1}), QColor(Qt::red));
    QCOMPARE(colourAt(icon, iconSize, {1, 62}), QColor(Qt::red));
    QCOMPARE(colourAt(icon, iconSize, {62, 1}), QColor(Qt::blue));
    QCOMPARE(colourAt(icon, iconSize, {62, 62}), QColor(Qt::blue));
}

void BrandingResourcesTest::theLogoCountsForBothModes() {
    Archive().add("logo.png", plainImage(Qt::blue));
    const QIcon logo = loaded().logoIcon();
    for (const QIcon::Mode mode : {QIcon::Normal, QIcon::Disabled}) {
        QCOMPARE(logo.pixmap(logoSize, mode).size(), logoSize);
        QCOMPARE(colourAt(logo, logoSize, {279, 49}, mode), QColor(Qt::blue));
    }
}

void BrandingResourcesTest::theFormatIsReadFromTheData() {
    Archive()
        .add("icon.png", plainImage(Qt::green, "BMP"))
        .add("logo.png", plainImage(Qt::red, "PPM"));
    const ui::BrandingResources branding = loaded();
    QCOMPARE(colourAt(branding.applicationIcon(), iconSize, {5, 5}), QColor(Qt::green));
    QCOMPARE(colourAt(branding.logoIcon(), logoSize, {5, 5}), QColor(Qt::red));
}

void BrandingResourcesTest::anImageThatIsNoneLeavesTheDefault() {
    QByteArray cut = plainImage(Qt::green);
    cut.truncate(20);
    Archive().add("icon.png", cut).add("logo.png", "not an image").add("strtable.txt", "");
    compareWithDefaults(loaded());
}

void BrandingResourcesTest::anEmptyValueReplacesTheDefault() {
    Archive().add("strtable.txt", "DESCRIPTION:\nHOMEPAGEURL:");
    QCOMPARE(loaded().description(), QString());
    QCOMPARE(loaded().homePageUrl(), QString());
}

void BrandingResourcesTest::anotherLoadStartsOver() {
    Archive().add("icon.png", plainImage(Qt::green)).add("strtable.txt", "DESCRIPTION: x");
    ui::BrandingResources branding = loaded();
    QVERIFY(QFile::remove(QString::fromLatin1(archiveName)));
    branding.load();
    compareWithDefaults(branding);
}

void BrandingResourcesTest::anEntryAtTheLimitIsRead() {
    const QByteArray largest(static_cast<int>(ui::ZipReader::largestEntry), 'x');
    Archive().add("fits", largest).add("too large", largest + 'x');
    const ui::ZipReader reader(QString::fromLatin1(archiveName));
    QCOMPARE(reader.read("fits").size(), largest.size());
    QCOMPARE(reader.read("too large"), QByteArray());
    QCOMPARE(reader.read("missing"), QByteArray());
}

void BrandingResourcesTest::aHundredMegabytesOfZerosCountAsMissing() {
    const QByteArray zeros(100 * 1024 * 1024, '\0');
    Archive().add("icon.png", zeros);
    QVERIFY(QFile(QString::fromLatin1(archiveName)).size() < 1024 * 1024);
    compareWithDefaults(loaded());
}

void BrandingResourcesTest::anImageOfTooManyPixelsCountsAsMissing() {
    // A bitmap with one bit per pixel, 65536 by 65536, without pixels after its header.
    QByteArray bitmap = image({32, 32}, Qt::red, Qt::red, "BMP");
    for (const int at : {18, 22})
        qToLittleEndian<qint32>(65536, bitmap.data() + at);
    Archive().add("icon.png", bitmap);
    compareWithDefaults(loaded());
}

void BrandingResourcesTest::anEntryWithAWrongChecksumCountsAsMissing() {
    Archive().add("strtable.txt", "DESCRIPTION: x");
    QFile file(QString::fromLatin1(archiveName));
    QVERIFY(file.open(QIODevice::ReadWrite));
    QByteArray bytes = file.readAll();
    const int at = bytes.indexOf("DESCRIPTION");
    QVERIFY(at > 0);
    bytes[at] = 'E';
    file.seek(0);
    file.write(bytes);
    file.close();
    QCOMPARE(loaded().description(), QStringLiteral("Norvel Inc"));
}

QTEST_MAIN(BrandingResourcesTest)
#include "branding_resources_test.moc"
