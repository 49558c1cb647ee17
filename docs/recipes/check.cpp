#include <KTCatalogueChecker.h>

#include <QBuffer>
#include <QTextStream>

int main()
{
    QTextStream out(stdout);
    QByteArray content = "<catalogue>\n"
                         "  <article art_id='1' name='Mug' productname='MUG1' cover_type='ceramic'/>\n"
                         "  <article art_id='2' name='Cup' productname='MUG2' pages='5' max_pages='4'/>\n"
                         "</catalogue>\n";
    QBuffer device(&content);
    device.open(QIODevice::ReadOnly);
    //! [check]
    KTRuleSeverities severities;
    severities.raiseToError(KTRule::UnknownKeyword);
    KTCatalogueChecker checker(
        [&out](const KTFinding &finding) {
            out << finding.file << ':' << finding.range.begin.line << ": "
                << KTCheckRules::name(finding.severity) << ": " << finding.message << " ["
                << KTCheckRules::name(finding.rule) << "]\n";
        },
        severities);
    const bool isCatalogue = checker.check(QStringLiteral("mugs.xml"), &device);
    out << (isCatalogue ? "read to its end" : "no catalogue") << '\n';
    //! [check]
}
