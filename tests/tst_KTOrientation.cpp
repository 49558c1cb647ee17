#include <KTAngle.h>
#include <KTOrientation.h>

#include "KTClassificationTest.h"

#include <QSizeF>

#include <climits>

class tst_KTOrientation : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void derivesFromSize()
    {
        const KTOrientation square(KTOrientationSquare);
        // Whatever derives it: a square one that is asked, the constructors, the factory; and a keyword wins.
        const auto derived = [&](const QString &text) {
            const QSizeF size(text.section(u'x', 0, 0).toDouble(), text.section(u'x', 1).toDouble());
            const int value = square.fromSize(size);
            const bool areSame = value == KTOrientation(size).value()
                && value == KTOrientation::createFromSize(size).value()
                && value == KTOrientation(u"bock"_s, size).value();
            return KTTest::text(value, areSame, KTOrientation(u"Quadratic"_s, size) == square);
        };
        KTTest::checkTable(u"sizes.tsv"_s, derived);
        QCOMPARE(square.value(), KTOrientationSquare);
        QCOMPARE(KTTest::logged(KTAngle(-1.5)), u"KTAngle: -1.5 "_s);
        QCOMPARE(KTOrientation::createFromPageTilt(-0.0).value(), KTOrientationLandscape);
        for (const int tilt : {90, -90})
            QCOMPARE(KTOrientation::createFromPageTilt(tilt).value(), KTOrientationPortrait);
        QVERIFY(KTAngle(0.25) < KTAngle(0.5) && !(KTAngle(0.5) < 0.5) && KTAngle(0.25) != 0.5);
    }

    void writesTemplate()
    {
        KTTest::check<int>(
            KTTest::templateOf<KTOrientation>,
            {"31 -> <t/>", "0 -> <t/>",
             "20 -> <t><orientation>square</orientation><orientation>landscape_slim</orientation></t>"});
    }

    void answersFormatQuestions()
    {
        const auto answers = [](int bits) {
            const auto format = KTTest::withBits<KTOrientation>(bits);
            const QString adjective = format.humanReadable();
            return KTTest::text(format.encodeForDLP(), format.foldMargin(100000), format.foldMargin(-100000),
                                format.defaultWidthHeightRatio(), adjective.isNull() ? u"none"_s : adjective);
        };
        KTTest::checkTable<int>(u"orientations.tsv"_s, answers);
        using KTTest::bitsWhere;
        QCOMPARE(bitsWhere<KTOrientation>([](auto format) { return format.isPortrait(); }), 9);
        QCOMPARE(bitsWhere<KTOrientation>([](auto format) { return format.isLandscape(); }), 18);
        QCOMPARE(bitsWhere<KTOrientation>([](auto format) { return format.isQuadratic(); }), 4);
        QVERIFY(KTTest::withBits<KTOrientation>(24).isLandscape());
        QCOMPARE(KTOrientation(KTOrientationPortrait).foldMargin(INT_MAX), 115231825);
    }
};

QTEST_APPLESS_MAIN(tst_KTOrientation)
#include "tst_KTOrientation.moc"
