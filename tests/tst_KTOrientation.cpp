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
        KTTest::check(derived,
                      {"100x50 -> 16|+|+", "99.9x50 -> 2|+|+", "50x100 -> 8|+|+", "50.1x100 -> 1|+|+",
                       "90x100 -> 1|+|+", "90.1x100 -> 4|+|+", "110x100 -> 4|+|+", "110.1x100 -> 2|+|+",
                       "0x0 -> 0|+|+", "10x0 -> 16|+|+", "0x10 -> 8|+|+", "-10x10 -> 0|+|+",
                       "10x-10 -> 0|+|+", "nanx10 -> 2|+|+"});
        QCOMPARE(square.value(), KTOrientationSquare);
        QCOMPARE(KTTest::logged(KTAngle(-1.5)), u"KTAngle: -1.5 "_s);
        QCOMPARE(KTOrientation::createFromPageTilt(-0.0).value(), KTOrientationLandscape);
        QCOMPARE(KTOrientation::createFromPageTilt(90).value(), KTOrientationPortrait);
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
        // For layouts, the folds of a margin and its negative, the ratio and the adjective.
        const auto answers = [](int bits) {
            const auto format = KTTest::withBits<KTOrientation>(bits);
            const QString adjective = format.humanReadable();
            return KTTest::text(format.encodeForDLP(), format.foldMargin(100000), format.foldMargin(-100000),
                                format.defaultWidthHeightRatio(), adjective.isNull() ? u"none"_s : adjective);
        };
        KTTest::check<int>(
            answers,
            {"0 -> portrait|5365|-5366|1|none", "1 -> portrait|5365|-5366|0.666666|Hochkant-",
             "8 -> portrait|5365|-5366|0.5|schlanke Hochkant-", "9 -> portrait|5365|-5366|1|none",
             "31 -> portrait|5365|-5366|1|none", "2 -> landscape|4074|-4075|1.5|Panorama-",
             "16 -> landscape|4074|-4075|2|schlanke Panorama-", "18 -> landscape|4074|-4075|1|none",
             "4 -> square|4487|-4488|1|quadratische ", "3 -> portrait|0|0|1|none",
             "24 -> portrait|0|0|1|none", "33 -> portrait|0|0|1|none"});
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
