#include <KTPageCountOrganizationListModel.h>

#include "KTMessageRecorder.h"
#include "KTTestSupport.h"

#include <QAbstractItemModelTester>
#include <QSortFilterProxyModel>

class tst_KTPageCountOrganizationListModel : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void listsPageCounts()
    {
        // Of a minimum, a maximum and a step: what the last row says of pages and of photos, and the rows.
        const auto listed = [](const QString &text) {
            const QStringList numbers = text.split(u' ');
            const KTIntRange range(numbers.at(0).toInt(), numbers.at(1).toInt());
            KTPageCountOrganizationListModel model;
            QString texts;
            for (const bool countsPhotos : {false, true}) {
                model.setPageOrganization(KTPageCountOrganization(range, numbers.at(2).toInt()),
                                          countsPhotos);
                texts += model.index(model.rowCount() - 1, 0).data().toString() + u'|';
            }
            return texts + QString::number(model.rowCount());
        };
        KTTest::check(listed,
                      {"24 98 4 -> 96 Seiten|96 Fotos|19", "0 0 0 -> 0 Seiten|0 Fotos|1", "1 9 -1 -> ||0",
                       "-2147483648 2147483647 1 -> -2 Seiten|-2 Fotos|2147483647"});
        KTTest::EchoTranslator translator;
        QCoreApplication::installTranslator(&translator);
        const QString context = u"KTPageCountOrganizationListModel/"_s;
        QCOMPARE(listed(u"7 7 0"_s), context + u"7 Seiten|"_s + context + u"7 Fotos|1"_s);
    }

    void answersLikeAList()
    {
        KTPageCountOrganizationListModel model;
        model.setPageOrganization(KTPageCountOrganization(KTIntRange(24, 98), 4), false);
        const QModelIndex index = model.index(3, 0);
        QVERIFY(!index.data(Qt::EditRole).isValid() && !model.data(QModelIndex(), Qt::DisplayRole).isValid());
        QVERIFY(!index.parent().isValid() && model.columnCount(index) == 1 && model.rowCount(index) == 19);
        QVERIFY(model.lowestValue() == 24 && model.highestValue() == 98);
        QVERIFY(model.pagesAtIndex(3) == 36 && model.indexForPages(36) == 3);

        // Who hears of a reset sees what was there, and then what is there.
        QStringList seen;
        const auto look = [&] { seen.append(model.index(0, 0).data().toString()); };
        connect(&model, &QAbstractItemModel::modelAboutToBeReset, look);
        connect(&model, &QAbstractItemModel::modelReset, look);
        model.setPageOrganization(KTPageCountOrganization(KTIntRange(1, 9), 2), true);
        QCOMPARE(seen.join(u'|'), u"24 Seiten|1 Fotos"_s);
    }

    void isAConsistentModel()
    {
        KTPageCountOrganizationListModel model;
        const KTMessageRecorder recorder;
        const QAbstractItemModelTester tester(&model,
                                              QAbstractItemModelTester::FailureReportingMode::Warning);
        QSortFilterProxyModel proxy;
        proxy.setSourceModel(&model);
        for (const int step : {4, -4, 0}) {
            model.setPageOrganization(KTPageCountOrganization(KTIntRange(24, 96), step), false);
            QCOMPARE(proxy.rowCount(), model.rowCount());
        }
        // A child index is treated like none, which the tester only expects of a tree.
        const QRegularExpression expected(u"model->(hasChildren\\(topIndex|parent\\(childIndex)\\)"_s);
        for (const KTMessageRecorder::Message &message : recorder.messages())
            QVERIFY2(expected.match(message.text).hasMatch(), qPrintable(message.text));
    }
};

QTEST_GUILESS_MAIN(tst_KTPageCountOrganizationListModel)
#include "tst_KTPageCountOrganizationListModel.moc"
