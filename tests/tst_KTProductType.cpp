#include <KTPriceClass.h>
#include <KTProductTypeList.h>

#include "KTMessageRecorder.h"
#include "KTTestSupport.h"

#include <QRandomGenerator>
#include <QRegularExpression>

#include <cstdlib>

namespace {

/** Makes a product type when what the tests have used is destroyed. */
const struct KTLastWord
{
    ~KTLastWord()
    {
        if (KTProductType(u"ALB9_30"_s).toString() != u"ALB9")
            std::abort();
    }
} LAST_WORD;

/** Two different codes of the letters with the same hash. */
QPair<QString, QString> collision(const QString &letters)
{
    QRandomGenerator random(1);
    for (QHash<uint, QString> codes;;) {
        QString code(40, QLatin1Char(' '));
        for (QChar &letter : code)
            letter = letters.at(random.bounded(letters.size()));
        const uint hash = KTProductType(code).calcHashValue();
        const QString earlier = codes.value(hash, code);
        if (earlier != code)
            return {earlier, code};
        codes.insert(hash, code);
    }
}

} // namespace

class tst_KTProductType : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void normalisesCode()
    {
        // What is kept; whether the price class and the hash agree with it.
        const auto kept = [](const QString &code) {
            const KTProductType type(code);
            const QString text = type.toString();
            return KTTest::text(text, type == KTProductType::fromPriceClass(text),
                                qHash(type, 5u) == (KTProductType(text).calcHashValue() ^ 5u));
        };
        KTTest::check(kept,
                      {"ALB9_30 -> ALB9|+|+", "ALBS12xyz -> ALBS12|+|+", "A\nXALB3ALBS4\n -> ALB3|+|+",
                       "ALB\u0663_ALB1\u0663 -> ALB1|+|+", " -> |+|+", "ALB -> ALB|+|+", "ALBX1 -> ALBX1|+|+",
                       "Alb9_30 -> Alb9_30|+|+", "XALB9_30 -> XALB9_30|+|+"});
    }

    void hashesAlikeWithEveryQt()
    {
        // The sum of the units, each times a power of 31, in 32 bits.
        const auto hash
            = [](const QString &code) { return KTTest::text(quint64(KTProductType(code).calcHashValue())); };
        KTTest::check(hash,
                      {" -> 0", "\u20ac -> 8364", "CAL30 -> 63886987", "PRODUCT -> 408508623",
                       "ABCDEFGHIJKLMNOP -> 2475544840"});
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
        QCOMPARE(KTProductType(u"Kalender \u00fc"_s).calcHashValue(), qHash(u"Kalender \u00fc"_s, 0));
#endif
    }

    void normalisesAsTheExpression()
    {
        const QRegularExpression expression(u"((ALB|ALBS)\\d+).*"_s);
        const QString pieces[]
            = {u"A"_s, u"AL"_s, u"ALB"_s, u"ALB"_s,    u"ALBS"_s,   u"S"_s,      u"0"_s,
               u"9"_s, u"\0"_s, u"\n"_s,  u"\u0663"_s, u"\uff11"_s, u"\xd800"_s, u"\xdc00"_s};
        QRandomGenerator random(1);
        for (int round = 0; round < 50'000; ++round) {
            QString code = u"A"_s;
            for (int count = random.bounded(8); count > 0; --count)
                code += pieces[random.bounded(int(std::size(pieces)))];
            const QRegularExpressionMatch match = expression.match(code);
            QCOMPARE(KTProductType(code).toString(), match.hasMatch() ? match.captured(1) : code);
        }
    }

    void knowsCalendars()
    {
        const auto kind = [](const QString &code) {
            return KTTest::text(KTProductType(code).isCalendar(), KTProductType(code).isAgenda());
        };
        KTTest::check(kind,
                      {"CAL29 -> +|+", "CAL30 -> +|+", "CAL -> +|-", "CAL3 -> +|-", "CAL290 -> +|-",
                       "cal29 -> -|-", " CAL29 -> -|-", "CA -> -|-", " -> -|-"});
        const auto found = [](const QString &csv) {
            const auto list = KTProductTypeList::buildFromCSV(csv);
            return KTTest::text(list.containsCalendar(), list.containsAgenda(),
                                list.containsNotOnlyCalendars());
        };
        KTTest::check(found,
                      {" -> -|-|-", "CAL3,CAL1 -> +|-|-", "CAL3,CAL30 -> +|+|-", "ALB9,CAL29 -> +|+|+"});
        QCOMPARE(KTProductType(QString()).orderTxtName(), u"UNKNOWN"_s);
        QVERIFY(!KTProductType(QString()).isValid() && KTProductType(u"UNKNOWN"_s).isValid());
    }

    void readsElement()
    {
        const auto read
            = [](const QString &xml) { return KTProductType::fromMcf(KTTest::element(xml)).toString(); };
        KTTest::check(read, {"<p productname='CAL29'/> -> CAL29", "<p/> -> ALB9", "<p productname=''/> -> "});
    }

    void comparesHashBeforeCode()
    {
        const KTProductType calendar(u"CAL29"_s);
        for (char unit = '0'; unit <= 'z'; ++unit) {
            const KTProductType type(QString(4 + unit % 3, QLatin1Char(unit)));
            QCOMPARE(type < calendar, type.calcHashValue() < calendar.calcHashValue());
        }
        QVERIFY(KTProductType(u"cal29"_s) != calendar);
        QCOMPARE(KTTest::logged(calendar), u"\"CAL29\" "_s);
        QCOMPARE(std::hash<KTProductType>()(calendar), std::size_t(calendar.calcHashValue()));
        for (const QString &letters : {u"xX"_s, u"xy"_s}) {
            const QPair<QString, QString> codes = collision(letters);
            QCOMPARE(KTProductType(codes.first) == KTProductType(codes.second), letters == u"xX"_s);
            QCOMPARE(KTProductType(codes.first) < KTProductType(codes.second), codes.first < codes.second);
            QCOMPARE(KTProductType(codes.second) < KTProductType(codes.first), codes.second < codes.first);
        }
    }

    void addsWithoutDoubles()
    {
        const KTMessageRecorder recorder;
        KTProductTypeList list(u"B,,B,UNKNOWN"_s.split(QLatin1Char(',')));
        list.addWithoutDoubles(list);
        list.addWithoutDoubles(KTProductTypeList::buildFromCSV(u"ALB9_3, B,,ALB9_2,B"_s));
        for (const QString &code : {u"UNKNOWN"_s, u"C"_s})
            list.addWithoutDoubles(KTProductType(code));
        QVERIFY(recorder.messages().isEmpty());
        QCOMPARE(KTTest::logged(list), u"(\"B\", \"B\", \"UNKNOWN\", \"ALB9\", \" B\", \"C\") "_s);
        // Refused first of all, so even where the list has one already.
        list.append(KTProductType(QString()));
        list.addWithoutDoubles(KTProductType(QString()));
        list.addWithoutDoubles(list);
        QCOMPARE(list.size(), 7);
        QCOMPARE(KTProductTypeList(list.mid(5)), KTProductTypeList({KTProductType(u"C"_s), KTProductType()}));
        QCOMPARE(recorder.messages().size(), 2);
        const KTMessageRecorder::Message message = recorder.messages().first();
        QCOMPARE(message.text, u"there is no \"UNKNOWN\""_s);
        QCOMPARE(QByteArray::number(message.type) + ' ' + message.category + ' ' + message.file + ':'
                     + QByteArray::number(message.line) + ' ' + message.function,
                 QByteArray("1 default libs/KTProductBase/KTProductTypeList:106 "
                            "void KTProductTypeList::addWithoutDoubles(const KTProductType &)"));
    }
};

QTEST_APPLESS_MAIN(tst_KTProductType)
#include "tst_KTProductType.moc"
