#include <KTArticle.h>
#include <KTArticleReport.h>
#include <KTCatalogueFormat.h>

#include "KTTestSupport.h"

#include <QJsonDocument>

/** An article in which no attribute has its default, so that each of them shows. */
static const QString ARTICLE = u"<article art_id='7' id='8' name='n' article_class='book' productname='CAL3' "
                               "price_class='CAL3' shipping_group='3' pages='10' max_pages='30' "
                               "page_step='2' pieces='2'>"
                               "<composition units='cm'><spine packages_per_block='2' base_width='1.5' "
                               "block_width='0.5' additional_width='0.5'/></composition>"
                               "<page type='fullcover' alignment='right' units='cm' width='20' height='30' "
                               "bleed_top='2' bleed_bottom='3' bleed_left='4' bleed_right='5' "
                               "slipcase_width='6' slipcase_height='7'/>"
                               "<barcodes units='cm'><barcode pageNr='3' position_x='2' position_y='3' "
                               "width='4' height='5' image='b.png'/></barcodes>"
                               "<forms><form key='k' value='v' key_name='K' value_name='V' editor_name='E' "
                               "name='N' preview='P' color='red' preselected='true' "
                               "not_accountable='true'/></forms></article>"_s;

/** All that the library reads of the article. */
static QString everythingIn(const QDomElement &article)
{
    const KTArticle model(article);
    return KTArticleReport::toJSON(model, {}) + KTTest::logged(model.options())
        + QString::number(model.spine().additionalSpineWidth().layoutUnits());
}

/** The same with the attribute changed; a null text takes it away. */
static QString everythingWith(const KTAttributeRow &row, const QString &text)
{
    QDomElement article = KTTest::element(ARTICLE);
    const QString element = KTCatalogueFormat::elementName(row.element);
    QDomElement changed
        = element == article.tagName() ? article : article.elementsByTagName(element).at(0).toElement();
    if (text.isNull())
        changed.removeAttribute(row.name.toString());
    else
        changed.setAttribute(row.name.toString(), text);
    return everythingIn(article);
}

class tst_KTCatalogueFormat : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void tellsTheLibrarysDefaults_data()
    {
        QTest::addColumn<int>("id");
        for (const KTAttributeRow &row : KTCatalogueFormat::attributes()) {
            const QString name = KTCatalogueFormat::elementName(row.element) + u'@' + row.name.toString();
            QTest::newRow(qPrintable(name)) << int(row.id);
        }
    }
    void tellsTheLibrarysDefaults()
    {
        QFETCH(int, id);
        const KTAttributeRow &row = KTCatalogueFormat::attribute(static_cast<KTAttributeId>(id));
        const bool isKept = row.id == KTAttributeId::ArticleId || row.id == KTAttributeId::FormName;
        const QString missing = everythingWith(row, QString());
        // Only the reader itself knows whether an attribute is there that it does not use.
        if (!isKept && row.type != KTAttributeType::Keywords)
            QVERIFY(missing != everythingIn(KTTest::element(ARTICLE)));
        if (row.type == KTAttributeType::Integer || row.type == KTAttributeType::Boolean
            || row.type == KTAttributeType::Color
            || (row.type == KTAttributeType::Length && row.id != KTAttributeId::PageSlipcaseWidth))
            QCOMPARE(everythingWith(row, u"?"_s), missing);
        const QString written = row.defaultText().section(u':', 0, 0);
        if (!std::holds_alternative<std::monostate>(row.defaultValue)
            && row.id != KTAttributeId::PageSlipcaseWidth)
            QCOMPARE(everythingWith(row, written), missing);
    }

    void findsRows()
    {
        const auto found = [](const QString &place) {
            const KTElementRow *const element = KTCatalogueFormat::element(place.section(u'@', 0, 0));
            const KTAttributeRow *const row
                = element ? KTCatalogueFormat::attribute(element->kind, place.section(u'@', 1)) : nullptr;
            return row ? KTCatalogueFormat::attributeName(row->id) + u' '
                    + KTCatalogueFormat::elementName(row->element)
                       : QString();
        };
        KTTest::check(found,
                      {"page@width -> width page", "barcode@width -> width barcode", "form@width -> ",
                       "pages@width -> ", "catalogue@name -> "});
        QVERIFY(KTCatalogueFormat::element(KTElementKind::Article, u"forms")
                && !KTCatalogueFormat::element(KTElementKind::Catalogue, u"forms"));
    }
};

QTEST_GUILESS_MAIN(tst_KTCatalogueFormat)
#include "tst_KTCatalogueFormat.moc"
