#include <KTBarcodeDefinitionList.h>
#include <KTDirectoryConfig.h>
#include <KTDistanceUnit.h>

#include "KTAllocationCounter.h"
#include "KTBoundaries.h"
#include "KTMessageRecorder.h"
#include "KTTestSupport.h"

#include <QRandomGenerator>
#include <QRegion>

#include <cstdlib>

using KTTest::toInt;
using KTTest::Wide;

using List = KTBarcodeDefinitionList;

namespace {

constexpr char dummy[] = "dummy-barcode.png";

KTBarcodeDefinition definition(const QRect &rect, int pageNr = 0, const char *imageName = "i")
{
    return KTBarcodeDefinition(rect, pageNr, QString::fromUtf8(imageName));
}

/** Asks for an image when Qt can load none any more. */
const struct LastWord
{
    ~LastWord()
    {
        if (!definition(QRect(), 0, dummy).image().isNull())
            std::abort();
    }
} LAST_WORD;

/** An icon, or of type 2 a cursor, whose directory says that the picture, a PNG image, has 16 x 16 pixels. */
QByteArray icon(const QByteArray &png, int type = 1)
{
    QByteArray file;
    QDataStream stream(&file, QIODevice::WriteOnly);
    stream.setByteOrder(QDataStream::LittleEndian);
    stream << quint16(0) << quint16(type) << quint16(1) << quint8(16) << quint8(16) << quint16(0)
           << quint16(1) << quint16(32) << quint32(png.size()) << quint32(22);
    return file + png;
}

/** The merge as it is written down. */
void updateStepByStep(KTBarcodeDefinitionList *list, KTBarcodeDefinitionList pending)
{
    while (!pending.isEmpty()) {
        const KTBarcodeDefinition next = pending.first();
        const KTBarcodeDefinition known = list->findDefinition(next.rect());
        if (list->contains(next)) {
            pending.removeAll(next);
        } else if (known.isValid()) {
            list->removeAll(known);
            list->append(next);
        } else {
            list->append(next);
            pending.removeAll(next);
        }
    }
}

} // namespace

class tst_KTBarcodeDefinition : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void readsElement()
    {
        // The rectangle, the page, the image; and how many valid ones an order has.
        const auto readIn = [](KTDistanceUnitEnum unit) {
            return [unit](const QString &attributes) {
                const QDomElement element = KTTest::element(u"<barcode %1/>"_s.arg(attributes));
                const auto read = KTBarcodeDefinition::createFromProductsXML(element, unit);
                return KTTest::text(read.rect(), read.pageNr(), read.imageName(),
                                    KTBarcodeDefinitionList::createFromXTCI(element, unit).size());
            };
        };
        KTTest::checkTable(u"barcodes.tsv"_s, readIn(KTDistanceUnitLayout));
        KTTest::check(readIn(KTDistanceUnitMillimeter),
                      {"image='i' -> QRect(10,0 10x10)|0|i|1",
                       "position_x='1.29' position_y='2' width='0.15' height='0.1' image='i' -> "
                       "QRect(12,19 1x1)|0|i|1"});
    }

    void readsList()
    {
        const QDomElement element
            = KTTest::element(u"<p><barcode pageNr='1'/><other/><barcode width='0'/><barcode pageNr='2'/>"
                              "<group><barcode/></group><Barcode/></p>"_s);
        const KTDistanceUnit unit(KTDistanceUnitLayout);
        const KTBarcodeDefinitionList read = KTBarcodeDefinitionList::createFromProductsXML(element, unit);
        const KTBarcodeDefinition second = definition({1, 0, 1, 1}, 2, dummy);
        QCOMPARE(read, List({definition(second.rect(), 1, dummy), second}));
        QCOMPARE(read.barcodesOnPage(2), List({second}));
        QVERIFY(read.barcodesOnPage(0).isEmpty());
        for (const QDomElement &other : {element, QDomElement()})
            QVERIFY(KTBarcodeDefinitionList::createFromXTCI(other, unit).isEmpty());
    }

    void staysInsideInt()
    {
        const auto isDefined = [](Wide first, Wide size) {
            return size > INT_MIN && first + size > INT_MIN && first + size <= INT_MAX;
        };
        QDomElement element = KTTest::element(u"<barcode/>"_s);
        for (const double position : KTTest::DOUBLES) {
            for (const double size : KTTest::DOUBLES) {
                element.setAttribute(u"position_x"_s, position);
                element.setAttribute(u"position_y"_s, position);
                element.setAttribute(u"width"_s, size);
                element.setAttribute(u"height"_s, size);
                const auto read = KTBarcodeDefinition::createFromProductsXML(element, KTDistanceUnitInch);
                const auto inches
                    = [](double number) { return std::isfinite(number) ? number * 254 : 254.0; };
                const int x = toInt(inches(position));
                const int y = toInt(inches(position) - inches(size));
                const int length = toInt(inches(size));
                const QRect rect = read.rect();
                QCOMPARE(read.isValid(), length >= 1);
                QCOMPARE(rect.width() > 0 && rect.height() > 0, length >= 1);
                QVERIFY(!isDefined(x, length) || (rect.left() == x && rect.width() == length));
                QVERIFY(!isDefined(y, length) || (rect.top() == y && rect.height() == length));
            }
        }
        // Widths and heights beyond int are compared as well.
        QRect all;
        all.setCoords(INT_MIN, INT_MIN, INT_MAX, INT_MAX);
        QVERIFY(definition({INT_MIN, INT_MIN, 1, 1}) < definition(all));
        QVERIFY(!(definition(all) < definition({INT_MIN, INT_MIN, 1, 1})));
    }

    void comparesWithoutOrder()
    {
        const KTBarcodeDefinition middle = definition({5, 5, 5, 5}, 5, "m");
        const KTBarcodeDefinition bothWays = definition({4, 5, 5, 5}, 5, "n");
        for (const KTBarcodeDefinition &less :
             {definition({4, 5, 5, 5}, 5, "m"), definition({5, 4, 5, 5}, 5, "m"),
              definition({5, 5, 4, 5}, 5, "m"), definition({5, 5, 5, 4}, 5, "m"),
              definition({5, 5, 5, 5}, 4, "m"), definition({5, 5, 5, 5}, 5, "l"), bothWays}) {
            QVERIFY(less < middle && (middle < less) == (less == bothWays));
            QVERIFY(less != middle && qHash(less) != qHash(middle));
            QVERIFY(List({less, less}) < List({middle, middle}));
            QVERIFY(!(List({less, middle}) < List({middle, middle})));
            QVERIFY(List(List({less, middle}).mid(1)) < List({less, less})
                    && !(List({less, less}) < List({middle})));
        }
        const KTBarcodeDefinition same = definition(middle.rect(), 5, "m");
        QCOMPARE(KTTest::logged(same), u"KTBarcodeDefinition: QRect(5,5 5x5) 5 \"m\" "_s);
        QVERIFY(same == middle && qHash(same) == qHash(middle) && !(same < middle));
        QVERIFY(List({}) < List({middle}) && !(List({}) < List({})));
    }

    void agreesWithTheModel()
    {
        QRandomGenerator random(42);
        for (int i = 0; i < 3000; ++i) {
            KTBarcodeDefinitionList lists[2];
            for (KTBarcodeDefinitionList &definitions : lists) {
                for (int n = random.bounded(9); n > 0; --n) {
                    definitions.append(definition({random.bounded(3), 0, random.bounded(3), 1},
                                                  random.bounded(3), random.bounded(4) ? "i" : ""));
                }
            }
            KTBarcodeDefinitionList expected = lists[0];
            updateStepByStep(&expected, lists[1]);
            lists[0].updateDefinitions(lists[1]);
            QCOMPARE(lists[0], expected);
            QRegion region;
            for (const KTBarcodeDefinition &entry : expected)
                region += entry.rect();
            QCOMPARE(expected.occupiedRegion(), region);
        }
    }

    void coversCrossingBars()
    {
        // Bars that cross would make millions of pieces.
        KTBarcodeDefinitionList bars;
        for (int i = 0; i < 1500; ++i)
            bars.append(definition(QRect(2 * i, 0, 1, 3000), 0));
        for (int i = 0; i < 1500; ++i)
            bars.append(definition(QRect(0, 2 * i, 3000, 1), 0));
        QCOMPARE(bars.occupiedRegion(), QRegion(0, 0, 3000, 3000));
    }

    void loadsImages()
    {
        QVERIFY(!definition(QRect(), 0, dummy).image().isNull());

        const QTemporaryDir folder;
        KTDirectoryConfig *const config = KTDirectoryConfig::instance();
        const QString root = config->resourceRoot();
        config->setResourceRoot(folder.path());
        const QDir icons(folder.filePath(u"icons/picshelf"_s));
        QVERIFY(icons.mkpath(u"."_s));
        const auto write = [&icons](const QString &name, const QByteArray &bytes) {
            QFile file(icons.filePath(name));
            return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
        };
        const auto save = [&icons](const QString &name, const QSize &size) {
            QImage image(size, QImage::Format_Mono);
            image.fill(1);
            return image.save(icons.filePath(name), "PNG");
        };
        const auto saveIcon = [&](const QString &name, const QString &picture) {
            QFile file(icons.filePath(picture));
            return file.open(QIODevice::ReadOnly) && write(name, icon(file.readAll()));
        };
        const KTMessageRecorder recorder;
        const KTBarcodeDefinition late = definition(QRect(0, 0, 1, 1), 0, "late.png");
        QVERIFY(late.image().isNull());
        QVERIFY(save(u"late.png"_s, QSize(3, 4)));
        QCOMPARE(late.image().size(), QSize(3, 4));
        // From now on the image is kept, by the copies too.
        QVERIFY(QFile::remove(icons.filePath(u"late.png"_s)));
        QCOMPARE(List({late}).findDefinition(late.rect()).image().size(), QSize(3, 4));
        QCOMPARE(List({late}).findDefinition(QRect(0, 0, 1, 2)), KTBarcodeDefinition());
        QCOMPARE(late, definition(late.rect(), 0, "late.png"));

        QVERIFY(save(u"most.png"_s, QSize(8000, 8000)));
        QVERIFY(save(u"more.png"_s, QSize(8000, 8001)));
        QVERIFY(save(u"../outside.png"_s, QSize(3, 4)));
        QVERIFY(write(u"none.png"_s, "none") && write(u"none.ico"_s, icon("none")));
        // What begins PNG images whose sizes have a negative product in 32 bits, and the product 0.
        const KTAllocationCounter loading;
        for (const char *const header :
             {"89504e470d0a1a0a0000000d494844520000ea600000ea600100000000a8a948ef000000ff4944415478",
              "89504e470d0a1a0a0000000d494844520001000000010000010000000044ff0d4e000000ff4944415478"}) {
            const QByteArray png = QByteArray::fromHex(header);
            for (const QByteArray &file : {png, icon(png), icon(png, 2)}) {
                QVERIFY(write(u"huge"_s, file));
                QVERIFY2(definition(QRect(), 0, "huge").image().isNull(), header);
            }
        }
        QVERIFY2(loading.bytes() < 1000000, "nothing is decoded");
        QVERIFY(saveIcon(u"most.ico"_s, u"most.png"_s) && saveIcon(u"more.ico"_s, u"more.png"_s));
        for (const char *const name : {"most.png", "most.ico"})
            QCOMPARE(definition(QRect(), 0, name).image().size(), QSize(8000, 8000));
        for (const char *const name :
             {"more.png", "more.ico", "none.png", "none.ico", "../outside.png", ".", ""})
            QVERIFY2(definition(QRect(), 0, name).image().isNull(), name);
        QVERIFY(recorder.messages().isEmpty());
        config->setResourceRoot(root);
    }
};

QTEST_GUILESS_MAIN(tst_KTBarcodeDefinition)
#include "tst_KTBarcodeDefinition.moc"
