#include <KTBoundaries.h>
#include <KTClassifications.h>

#include <QFile>
#include <QSet>

namespace {

/** The words of the formats, which no table holds. */
constexpr const char *WORDS
    = "<article <forms <form <composition <spine <barcodes <barcode <page <catalogue </ /> <!-- --> "
      "<![CDATA[ ]]> "
      "<?xml encoding=\"UTF-8\" ?> <!DOCTYPE &amp; &#0; &#x10FFFF; id= art_id= article_id= productname= "
      "shipping_group= price_class= name= pages= max_pages= page_step= pieces= units= packages_per_block= "
      "base_width= block_width= additional_width= pageNr= position_x= position_y= width= height= image= "
      "bleed_top= "
      "bleed_left= slipcase_width= slipcase_height= key= value= key_name= value_name= editor_name= preview= "
      "color= "
      "preselected=true not_accountable=1 alcolor coverphoto boxstyle giftboxcolor;boxstyle flyleafcolor "
      "form_parameter- %1 %2 black;wood #1a1a1a ALB9_30 ALBS32 CAL29 CAL30 VDO1 UNKNOWN [\" \"] {\"id\": ../ "
      ".pdf "
      "dummy-barcode.png \xe2\x84\xaa \xc4\xb0 \xf0\x9f\x93\x96 1,5";

} // namespace

/** Writes a dictionary for libFuzzer: every keyword that the library reads, and what its arithmetic fears. */
int main(int argc, char **argv)
{
    QSet<QString> words;
    for (const KTClassification &classification : KTClassification::all()) {
        words.insert(classification.attribute() + u'=');
        for (const KTKeywordInfo &keyword : classification.keywords())
            words += QSet<QString>(keyword.aliases.begin(), keyword.aliases.end()) << keyword.written;
    }
    for (const int number : KTTest::INTS)
        words.insert(QString::number(number));
    for (const double number : KTTest::DOUBLES)
        words.insert(QString::number(number));
    for (const QString &word : QString::fromUtf8(WORDS).split(u' '))
        words.insert(word);

    QFile file(QString::fromLocal8Bit(argv[argc - 1]));
    if (!file.open(QIODevice::WriteOnly))
        return 1;
    for (const QString &word : words)
        file.write("\"\\x" + word.toUtf8().toHex(',').replace(',', "\\x") + "\"\n");
    return 0;
}
