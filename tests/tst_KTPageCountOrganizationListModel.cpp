#include <KTPageCountOrganizationListModel.h>

#include "KTBoundaries.h"
#include "KTMessageRecorder.h"
#include "KTTestSupport.h"

#include <QAbstractItemModelTester>
#include <QSortFilterProxyModel>
#include <QTranslator>

class UpperCaseTranslator : public QTranslator
{
public:
    QString translate(const char *context, const char *text, const char *, int) const override
    {
        const bool isOurs = qstrcmp(context, "KTPageCountOrganizationListModel") == 0;
        return isOurs ? QString::fromUtf8(text).toUpper() : QString();
    }
    bool isEmpty() const override { return false; }
};

class tst_KTPageCountOrganizationListModel : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void listsPageCounts_data()
    {
        const KTTest::Rows<int, int, int, int, QString> row;
        row("steps", 10, 40, 10, 4, "40 Seiten 40 Fotos 40 SEITEN 40 FOTOS");
        row("incomplete last step", 24, 98, 4, 19, "96 Seiten 96 Fotos 96 SEITEN 96 FOTOS");
        row("nothing yet", 0, 0, 0, 1, "0 Seiten 0 Fotos 0 SEITEN 0 FOTOS");
        row("negative step", 1, 9, -1, 0, "   ");
        row("most rows", INT_MIN, INT_MAX, 1, INT_MAX, "-2 Seiten -2 Fotos -2 SEITEN -2 FOTOS");
    }
    void listsPageCounts()
    {
        const auto [min, max, step, rows, lastTexts] = KTTest::row<int, int, int, int, QString>();
        const KTPageCountOrganization pages(KTIntRange(min, max), step);
        KTPageCountOrganizationListModel model;
        QSignalSpy aboutToReset(&model, &QAbstractItemModel::modelAboutToBeReset);
        QSignalSpy reset(&model, &QAbstractItemModel::modelReset);
        QModelIndex last;
        const auto lastText = [&](bool countsPhotos) {
            model.setPageOrganization(pages, countsPhotos);
            last = model.index(model.rowCount() - 1, 0);
            return last.data().toString();
        };
        QStringList texts {lastText(false), lastText(true)};
        UpperCaseTranslator translator;
        QCoreApplication::installTranslator(&translator);
        texts << lastText(false) << lastText(true);
        QCOMPARE(texts.join(QLatin1Char(' ')), lastTexts);
        QCOMPARE(aboutToReset.size() + reset.size(), 8);
        QCOMPARE(model.rowCount(last), rows);
        QVERIFY(!last.data(Qt::EditRole).isValid() && !model.data(QModelIndex(), Qt::DisplayRole).isValid());
        QVERIFY(!last.parent().isValid() && model.columnCount(last) == 1);
        QVERIFY(model.lowestValue() == pages.minPages() && model.highestValue() == pages.maxPages());
        QVERIFY(model.pagesAtIndex(3) == pages.pagesWithNExtraPackages(3));
        QVERIFY(model.indexForPages(35) == pages.countPackages(35));
    }

    void isAConsistentModel()
    {
        KTPageCountOrganizationListModel model;
        const KTMessageRecorder recorder;
        const QAbstractItemModelTester tester(&model,
                                              QAbstractItemModelTester::FailureReportingMode::Warning);
        QSortFilterProxyModel proxy;
        proxy.setSourceModel(&model);
        for (const int step : {4, -4, 0})
            model.setPageOrganization(KTPageCountOrganization(KTIntRange(24, 96), step), false);
        QCOMPARE(proxy.rowCount(), 1);
        // A child index is treated like none, which the tester only expects of a tree.
        const QRegularExpression expected(u"model->(hasChildren\\(topIndex|parent\\(childIndex)\\)"_s);
        for (const KTMessageRecorder::Message &message : recorder.messages())
            QVERIFY2(expected.match(message.text).hasMatch(), qPrintable(message.text));
    }
};

QTEST_GUILESS_MAIN(tst_KTPageCountOrganizationListModel)
#include "tst_KTPageCountOrganizationListModel.moc"
