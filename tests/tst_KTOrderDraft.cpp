#include <KTOrderDraft.h>

#include "KTTestSupport.h"

namespace {

KTArticle article(const QString &attributes, const QString &forms)
{
    return KTArticle(KTTest::element(u"<article art_id='7' price_class='ALB9' "_s + attributes + u"><forms>"_s
                                     + forms + u"</forms></article>"_s));
}

KTArticle book()
{
    return article(u"pages='26' max_pages='40' page_step='4'"_s,
                   u"<form key='c' value='red' preselected='1'/><form key='c' value='black'/>"
                   "<form key='a;b' value='x;y'/><form key='a;b' value='1;2'/>"
                   "<form key='spot' value='gold'/><form key='spot' value='gloss' not_accountable='1'/>"_s);
}

QString text(const std::optional<KTOrderRefusal> &refusal)
{
    return refusal ? refusal->toString() : QString();
}

} // namespace

class tst_KTOrderDraft : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void startsFromThePreselection()
    {
        const KTOrderDraft draft(book());
        QCOMPARE(draft.mcf(), u"c:red"_s);
        QVERIFY(!draft.pages());
        QCOMPARE(draft.openKeys(), (QStringList {u"a;b"_s, u"spot"_s}));
        QVERIFY(!draft.isComplete());
        QVERIFY(KTOrderDraft().mcf().isEmpty());
    }

    void choosesOrSaysWhyNot()
    {
        KTOrderDraft draft(book());
        QCOMPARE(text(draft.choose(u"c"_s, u"blck"_s)),
                 u"does not offer 'blck' for 'c'; offered: red, black; did you mean 'black'?"_s);
        QCOMPARE(text(draft.choose(u"spt"_s, u"gold"_s)),
                 u"has no option 'spt'; offered: a;b, c, spot; did you mean 'spot'?"_s);
        QCOMPARE(text(KTOrderDraft().choose(u"c"_s, u"red"_s)), u"has no option 'c'; it offers none"_s);
        QCOMPARE(draft.mcf(), u"c:red"_s);
        QCOMPARE(text(draft.choose(u"c"_s, u"black"_s)), QString());
        QCOMPARE(text(draft.choose(u"a;b"_s, u"1;2"_s)), QString());
        QCOMPARE(draft.mcf(), u"a;b:1;2,c:black"_s);
        QCOMPARE(draft.orderText(), u"a:1;b:2;c:black"_s);
        QCOMPARE(draft.production().keys(), (QStringList {u"a"_s, u"b"_s, u"c"_s}));
    }

    void setsPages_data()
    {
        const KTTest::Rows<QString, int, QString> row;
        const QString steps = u"pages='26' max_pages='40' page_step='4'"_s;
        row("valid", steps, 34, "");
        row("between", steps, 31, "cannot have 31 pages; the nearest valid page counts: 30 and 34");
        row("below", steps, INT_MIN, "cannot have -2147483648 pages; the nearest valid page counts: 26");
        row("above an uneven last step", steps, 40,
            "cannot have 40 pages; the nearest valid page counts: 38");
        row("far above", steps, 100, "cannot have 100 pages; the nearest valid page counts: 38");
        row("inverted, over all of int", u"pages='2147483647' max_pages='-2147483648' page_step='1'"_s, 3,
            "cannot have 3 pages; no page count is valid");
        row("no step", u"pages='20'"_s, 21, "cannot have 21 pages; the nearest valid page counts: 20");
    }
    void setsPages()
    {
        const auto [attributes, pages, refusal] = KTTest::row<QString, int, QString>();
        KTOrderDraft draft(article(attributes, QString()));
        QCOMPARE(text(draft.setPages(pages)), refusal);
        QCOMPARE(draft.pages(), refusal.isEmpty() ? std::make_optional(pages) : std::nullopt);
    }

    void isCompleteWithAllKeysAndPages()
    {
        KTOrderDraft draft(book());
        QVERIFY(!draft.choose(u"a;b"_s, u"x;y"_s) && !draft.choose(u"spot"_s, u"gold"_s));
        QVERIFY(!draft.isComplete());
        QVERIFY(!draft.setPages(26));
        QVERIFY(draft.isComplete());
        QVERIFY(KTOrderDraft(article(u"pages='20'"_s, QString())).isComplete());
        const QString two = u"pages='20' max_pages='22' page_step='2'"_s;
        QVERIFY(!KTOrderDraft(article(two, QString())).isComplete());
    }

    void readsSavedChoices()
    {
        KTOrderDraft draft(book());
        QStringList refusals;
        for (const KTOrderRefusal &refusal : draft.readMCF(u"a;b:1;2,c:blue,old:thing,spot:gold"_s))
            refusals.append(refusal.key + u'=' + refusal.value);
        QCOMPARE(refusals, (QStringList {u"c=blue"_s, u"old=thing"_s}));
        QCOMPARE(draft.mcf(), u"a;b:1;2,c:red,spot:gold"_s);
    }

    void billsArticleAndChargedSpotColor()
    {
        KTOrderDraft draft(book());
        QCOMPARE(draft.priceClasses(), KTPriceClassSet(KTPriceClass(u"ALB9"_s)));
        QVERIFY(!draft.choose(u"spot"_s, u"gold"_s));
        QCOMPARE(draft.priceClasses().size(), KTPriceClassSet::spotColorGoldSilver().size() + 1);
        QVERIFY(!draft.choose(u"spot"_s, u"gloss"_s));
        QCOMPARE(draft.priceClasses().size(), 1);
        QVERIFY(KTOrderDraft().priceClasses().isEmpty());
    }
};

QTEST_GUILESS_MAIN(tst_KTOrderDraft)
#include "tst_KTOrderDraft.moc"
