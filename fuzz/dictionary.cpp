#include <KTCatalogueFormat.h>

#include <QFile>

namespace {

/** The words of the formats that no table holds. */
constexpr const char *WORDS
    = "</ /> <!-- --> <![CDATA[ ]]> <?xml encoding=\"UTF-8\" ?> <!DOCTYPE &amp; &#0; &#x10FFFF; &#x85; "
      "&#x202E; article_id= =true =1 alcolor coverphoto boxstyle giftboxcolor;boxstyle flyleafcolor "
      "form_parameter- %1 %2 "
      "black;wood #1a1a1a ALB9_30 ALBS32 CAL29 CAL30 VDO1 UNKNOWN [\" \"] {\"id\": ../ .pdf "
      "dummy-barcode.png \xe2\x84\xaa \xc4\xb0 \xf0\x9f\x93\x96 1,5 "
      "-2147483648 -2147483647 -1 2147483646 2147483647 4294967295 nan -inf 1e300 1e-300 -0.5";

} // namespace

/** Writes a dictionary for libFuzzer: every keyword that the library reads, and what its arithmetic fears. */
int main(int argc, char **argv)
{
    QStringList words = QString::fromUtf8(WORDS).split(u' ');
    for (const KTClassification &classification : KTClassification::all()) {
        for (const KTKeywordInfo &keyword : classification.keywords())
            words += keyword.aliases + QStringList(keyword.written);
    }
    for (const KTElementRow &element : KTCatalogueFormat::elements())
        words.append(u'<' + element.name.toString());
    for (const KTAttributeRow &attribute : KTCatalogueFormat::attributes())
        words.append(attribute.name.toString() + u'=');
    words.removeDuplicates();

    QFile file(QString::fromLocal8Bit(argv[argc - 1]));
    if (!file.open(QIODevice::WriteOnly))
        return 1;
    for (const QString &word : qAsConst(words))
        file.write("\"\\x" + word.toUtf8().toHex(',').replace(',', "\\x") + "\"\n");
    return 0;
}
