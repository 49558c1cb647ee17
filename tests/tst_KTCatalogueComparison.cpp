#include <KTArticleComparison.h>
#include <KTCatalogueComparison.h>
#include <KTDistanceUnit.h>
#include <KTOrderImpact.h>

#include "KTTestSupport.h"

#include <QBuffer>
#include <QRandomGenerator>
#include <QSet>

#include <memory>

namespace {

KTArticle article(const QString &attributes, const QString &children = QString())
{
    return KTArticle(KTTest::element(u"<article id='4' %1>%2</article>"_s.arg(attributes, children)));
}

QString pages(int first, int last, int step)
{
    return u"pages='%1' max_pages='%2' page_step='%3'"_s.arg(first).arg(last).arg(step);
}

/** The difference with the rule; one without a message where there is none. */
KTDifference find(const QVector<KTDifference> &differences, KTDifferenceRule rule)
{
    for (const KTDifference &difference : differences) {
        if (difference.rule == rule)
            return difference;
    }
    return KTDifference();
}

QVector<int> numbers(const QString &text)
{
    QVector<int> numbers;
    auto matches = QRegularExpression(u"-?\\d+"_s).globalMatch(text);
    while (matches.hasNext())
        numbers.append(matches.next().captured().toInt());
    return numbers;
}

QSet<int> validCounts(const KTArticle &article)
{
    QSet<int> counts;
    for (int count = -20; count <= 60; ++count) {
        if (article.pageCounts().isValidPageCount(count))
            counts.insert(count);
    }
    return counts;
}

double width(const KTArticle &article, int count)
{
    return article.spine().spineWidth(static_cast<unsigned int>(count)).value(KTDistanceUnitMillimeter);
}

/** A catalogue in memory with its index. */
struct File
{
    explicit File(const QString &content, std::optional<int> articleId = std::nullopt)
    {
        buffer.setData(content.toUtf8());
        buffer.open(QIODevice::ReadWrite);
        index = std::make_unique<KTCatalogueIndex>(&buffer, articleId);
    }

    QBuffer buffer;
    std::unique_ptr<KTCatalogueIndex> index;
};

} // namespace

class tst_KTCatalogueComparison : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    /** Against every count of the range, asked one by one. */
    void comparesPageCounts()
    {
        QRandomGenerator random(1);
        for (int i = 0; i < 4000; ++i) {
            const auto some = [&] {
                const int first = random.bounded(1, 12);
                return article(pages(first, first + random.bounded(-2, 40), random.bounded(0, 9)));
            };
            const KTArticle older = some();
            const KTArticle newer = some();
            const QSet<int> before = validCounts(older);
            const QSet<int> after = validCounts(newer);
            const QVector<KTDifference> differences = KTArticleComparison::differences(older, newer);
            const KTDifference removed = find(differences, KTDifferenceRule::PageCountsRemoved);
            const KTDifference added = find(differences, KTDifferenceRule::PageCountsAdded);
            const QSet<int> gone = before - after;
            const QByteArray place = removed.message.toUtf8() + " / " + added.message.toUtf8();
            QVERIFY2(removed.message.isEmpty() == gone.isEmpty(), place);
            if (before.size() > 1 && !gone.isEmpty() && gone.size() < before.size())
                QVERIFY2(removed.message.contains(u": %1 of %2 counts"_s.arg(gone.size()).arg(before.size())),
                         place);
            if (before.size() > 1 && !gone.isEmpty() && !after.isEmpty()) {
                const int first = *std::min_element(gone.begin(), gone.end());
                const int nearest = numbers(removed.message).constLast();
                QVERIFY2(removed.message.contains(u"the next to %1 is"_s.arg(first)), place);
                QVERIFY2(after.contains(nearest), place);
            }
            const QSet<int> fresh = after - before;
            const bool areAlike = older.pageCounts().isValid() == newer.pageCounts().isValid();
            QVERIFY2(added.message.isEmpty() == (fresh.isEmpty() || !areAlike), place);
            if (fresh.size() > 1 && areAlike)
                QVERIFY2(added.message.contains(u"%1 new page counts, from %2 on"_s.arg(fresh.size())
                                                    .arg(*std::min_element(fresh.begin(), fresh.end()))),
                         place);
        }
    }

    /** At every page count that both have, and only there. */
    void comparesSpines()
    {
        QRandomGenerator random(2);
        const auto some = [&] {
            const int first = 2 * random.bounded(1, 5);
            return article(
                pages(first, first + 24, 2 * random.bounded(1, 3)),
                u"<composition units='mm'><spine base_width='6.%1' block_width='%2' packages_per_block='%3'/></composition>"_s
                    .arg(random.bounded(2))
                    .arg(random.bounded(1, 3))
                    .arg(random.bounded(1, 4)));
        };
        for (int i = 0; i < 2000; ++i) {
            const KTArticle older = some();
            const KTArticle newer = some();
            QSet<int> wider;
            for (const int count : validCounts(older) & validCounts(newer)) {
                if (std::abs(width(older, count) - width(newer, count)) > 0.01)
                    wider.insert(count);
            }
            const KTDifference difference
                = find(KTArticleComparison::differences(older, newer), KTDifferenceRule::SpineChanged);
            QCOMPARE(difference.message.isEmpty(), wider.isEmpty());
            if (!wider.isEmpty())
                QVERIFY2(difference.message.contains(
                             u"at %1 pages"_s.arg(*std::min_element(wider.begin(), wider.end()))),
                         qPrintable(difference.message));
            if (wider.size() > 1)
                QVERIFY2(difference.message.contains(u" %1 "_s.arg(wider.size())),
                         qPrintable(difference.message));
        }
    }

    /** However many, what is asked of the places is asked of the one that is meant. */
    void findsPlaces()
    {
        const QString before = u"<catalogue>\n<article id='4'>\n<forms>\n<form key='a'/>\n"
                               "<form key='a' value='1'/>\n<form key='a' value='2'/></forms>\n"
                               "<barcodes>\n<barcode width='0'/>\n<barcode pageNr='1'/></barcodes>\n"
                               "</article></catalogue>"_s;
        QString after = before;
        after.replace(u"value='2'"_s, u"value='2' not_accountable='1'"_s)
            .replace(u"pageNr='1'"_s, u"pageNr='1' image='a'"_s);
        File older(before);
        File newer(after);
        QVector<KTDifference> differences;
        QVERIFY(KTCatalogueComparison(older.index.get(), newer.index.get()).compare(0, 0, &differences));
        QCOMPARE(differences.size(), 2);
        QCOMPARE(differences.at(0).rule, KTDifferenceRule::OptionNotCharged);
        QCOMPARE(differences.at(0).olderRange.begin.line, 6);
        QCOMPARE(differences.at(0).olderRange.begin.column, 1);
        QCOMPARE(differences.at(0).newerRange.begin.column, 25);
        QCOMPARE(differences.at(1).rule, KTDifferenceRule::BarcodeImageChanged);
        QCOMPARE(differences.at(1).newerRange.begin.line, 9);
    }

    void readsSingleArticles_data()
    {
        QTest::addColumn<QString>("content");
        QTest::addColumn<QVector<int>>("ids");
        QTest::addColumn<QString>("nameOfFour");
        QTest::newRow("none") << u"<catalogue/>"_s << QVector<int> {} << QString();
        QTest::newRow("by number") << u"<catalogue><article id='9'/><article id='4' name='a'/></catalogue>"_s
                                   << QVector<int> {4, 9} << u"a"_s;
        QTest::newRow("first of two")
            << u"<catalogue><article id='4' name='a'/><article id='4' name='b'/></catalogue>"_s
            << QVector<int> {4} << u"a"_s;
        QTest::newRow("no number") << u"<catalogue><article name='a'/><article id='-4'/></catalogue>"_s
                                   << QVector<int> {} << QString();
        QTest::newRow("broken") << u"<catalogue><article id='4' name='a'/>"_s << QVector<int> {} << QString();
    }
    void readsSingleArticles()
    {
        QFETCH(QString, content);
        QFETCH(QVector<int>, ids);
        QFETCH(QString, nameOfFour);
        const File file(content);
        QVector<int> found;
        for (int place = 0; place < file.index->size(); ++place)
            found.append(file.index->articleId(place));
        QCOMPARE(found, ids);
        QCOMPARE(file.index->article(4).value_or(KTArticle()).name(), nameOfFour);
        QVERIFY(!file.index->article(5));
        const File single(content, 4);
        QCOMPARE(single.index->size(), ids.contains(4) ? 1 : 0);
        QCOMPARE(single.index->article(4).value_or(KTArticle()).name(), nameOfFour);
    }

    /** However little it is that differs; the order of attributes does not. */
    void tellsTextsApart()
    {
        QStringList articles {u"<a><b/></a>"_s,
                              u"<a/><b/>"_s,
                              u"<a x='y'><b/></a>"_s,
                              u"<a><b x='y'/></a>"_s,
                              u"<a xy=''><b/></a>"_s,
                              u"<a y='x'><b/></a>"_s,
                              u"<a x='y' z='y'><b/></a>"_s,
                              u"<b><a/></b>"_s,
                              u"<a x=''><b/></a>"_s};
        for (int i = 0; i < 300; ++i)
            articles.append(u"<a x='%1' y='%2'/>"_s.arg(i % 30).arg(i / 30));
        QVector<std::shared_ptr<File>> files;
        for (const QString &text : articles)
            files.append(
                std::make_shared<File>(u"<catalogue><article id='1'>%1</article></catalogue>"_s.arg(text)));
        for (int i = 0; i < files.size(); ++i) {
            for (int j = 0; j < files.size(); ++j)
                QCOMPARE(files.at(i)->index->isWrittenAlike(0, *files.at(j)->index, 0), i == j);
        }
        const File reversed(
            u"<catalogue> <article id='1'><!-- --><a y='9' x='29'></a></article></catalogue>"_s);
        QVERIFY(reversed.index->isWrittenAlike(0, *files.constLast()->index, 0));
    }

    void noticesChanges()
    {
        const QString content = u"<catalogue><article id='4' name='a'/></catalogue>"_s;
        File older(content);
        File newer(QString(content).replace(u"'a'"_s, u"'b'"_s));
        newer.buffer.buffer().replace("'b'", "'c'");
        int received = 0;
        KTCatalogueComparison comparison(older.index.get(), newer.index.get());
        QVERIFY(!comparison.run([&](const QVector<KTDifference> &) { ++received; }));
        QCOMPARE(received, 0);
        QVERIFY(older.index->error().kind == KTCatalogueErrorKind::None);
        QVERIFY(newer.index->error().kind == KTCatalogueErrorKind::Changed);
    }

    void countsOrders_data()
    {
        QTest::addColumn<QString>("order");
        QTest::addColumn<QVector<int>>("rules");
        QTest::addColumn<bool>("isBroken");
        using Rule = KTDifferenceRule;
        const auto rules = [](std::initializer_list<Rule> list) {
            QVector<int> numbers;
            for (const Rule rule : list)
                numbers.append(static_cast<int>(rule));
            return numbers;
        };
        QTest::newRow("nothing chosen")
            << u"4"_s << rules({Rule::PriceClassChanged, Rule::OptionCharged, Rule::PreselectionChanged})
            << false;
        QTest::newRow("the free option")
            << u"4\t\ta:x"_s << rules({Rule::PriceClassChanged, Rule::OptionCharged}) << false;
        QTest::newRow("the option that is gone")
            << u"4\t\ta:z"_s << rules({Rule::PriceClassChanged, Rule::OptionRemoved}) << true;
        QTest::newRow("the key that is gone")
            << u"4\t\tb:y,a:y"_s << rules({Rule::PriceClassChanged, Rule::OptionKeyRemoved}) << true;
        QTest::newRow("pages that are gone")
            << u"4\t28\ta:y"_s << rules({Rule::PriceClassChanged, Rule::PageCountsRemoved}) << true;
        QTest::newRow("pages that never were")
            << u"4\t29\ta:y"_s << rules({Rule::PriceClassChanged}) << false;
        QTest::newRow("pages that stay") << u"4\t30\ta:y"_s << rules({Rule::PriceClassChanged}) << false;
        QTest::newRow("another article") << u"5"_s << rules({}) << false;
    }
    void countsOrders()
    {
        QFETCH(QString, order);
        QFETCH(QVector<int>, rules);
        QFETCH(bool, isBroken);
        const KTArticle older
            = article(u"price_class='A' "_s + pages(26, 34, 2),
                      u"<forms><form key='a' value='x' preselected='1' not_accountable='1'/>"
                      "<form key='a' value='y'/><form key='a' value='z'/>"
                      "<form key='b' value='y'/></forms>"_s);
        const KTArticle newer
            = article(u"price_class='B' "_s + pages(26, 34, 4),
                      u"<forms><form key='a' value='x'/><form key='a' value='y' preselected='1'/></forms>"_s);
        const auto source = [](const KTArticle &found) {
            return [found](int id) { return id == 4 ? std::make_optional(found) : std::nullopt; };
        };
        const QVector<KTDifference> differences = KTArticleComparison::differences(older, newer);
        KTOrderImpact impact(source(older), source(newer), differences);
        QByteArray bytes = order.toUtf8();
        QBuffer file(&bytes);
        QVERIFY(file.open(QIODevice::ReadOnly));
        KTSavedOrder saved;
        QVERIFY(KTSavedOrders(&file).next(&saved) == KTSavedOrders::Item::Order);
        QCOMPARE(impact.add(saved).isBroken(), isBroken);
        QVector<int> hit;
        for (int i = 0; i < differences.size(); ++i) {
            if (impact.hits(i).value_or(0) > 0)
                hit.append(static_cast<int>(differences.at(i).rule));
        }
        std::sort(hit.begin(), hit.end());
        std::sort(rules.begin(), rules.end());
        QCOMPARE(hit, rules);
        QCOMPARE(impact.broken(), isBroken ? 1 : 0);
    }
};

QTEST_GUILESS_MAIN(tst_KTCatalogueComparison)
#include "tst_KTCatalogueComparison.moc"
