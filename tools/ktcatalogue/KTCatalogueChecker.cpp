#include "KTCatalogueChecker.h"

#include "KTCatalogueReader.h"
#include "KTFileName.h"

#include <QFile>

#include <algorithm>

namespace {

/** The file as a whole. */
constexpr KTFilePosition NO_POSITION = {0, 0};

KTRule ruleOf(KTCatalogueErrorKind kind)
{
    switch (kind) {
    case KTCatalogueErrorKind::LimitExceeded:
        return KTRule::LimitExceeded;
    case KTCatalogueErrorKind::Unreadable:
        return KTRule::UnreadableFile;
    default:
        return KTRule::NotWellFormed;
    }
}

} // namespace

int KTCatalogueChecker::FirstLines::knownLine(int number, int line)
{
    constexpr int MASK = (1 << SHARED_BITS) - 1;
    int &known = myLines[number >> SHARED_BITS][static_cast<std::size_t>(number & MASK)];
    if (known == 0) {
        known = line;
        return 0;
    }
    return known;
}

KTCatalogueChecker::KTCatalogueChecker(Receiver receiver, const KTRuleSeverities &severities)
    : myReceiver(std::move(receiver))
    , mySeverities(severities)
{
}

bool KTCatalogueChecker::checkFile(const QString &name)
{
    QFile file;
    const QString error = KTFileName::open(&file, name);
    if (error.isEmpty())
        return check(name, &file);
    reportFile(KTRule::UnreadableFile, name, NO_POSITION,
               QStringLiteral("%1; the application has no articles from it").arg(error));
    return false;
}

bool KTCatalogueChecker::check(const QString &name, QIODevice *device)
{
    KTCatalogueReader reader(device);
    KTCatalogueArticle article;
    FirstLines lines;
    int articles = 0;
    while (reader.readNextOrOther(&article)) {
        if (!reader.isArticle()) {
            report(name, myArticleChecker.checkOther(article, reader.isRoot()));
            continue;
        }
        QVector<KTFinding> findings = myArticleChecker.check(article);
        checkNumber(article, &lines, &findings);
        report(name, findings);
        if (myListener)
            myListener(++articles);
    }
    if (reader.errorKind() == KTCatalogueErrorKind::None)
        return true;
    QString text = reader.errorText();
    if (text.endsWith(QLatin1Char('.')))
        text.chop(1);
    reportFile(ruleOf(reader.errorKind()), name, reader.errorPosition(),
               text + QStringLiteral("; the application refuses the file"));
    return false;
}

void KTCatalogueChecker::checkNumber(const KTCatalogueArticle &article, FirstLines *lines,
                                     QVector<KTFinding> *findings) const
{
    const int number = myArticleChecker.articleId();
    if (number <= 0)
        return;
    const KTCatalogueArticle::Element &element = article.elements().constFirst();
    const int known = lines->knownLine(number, element.position.line);
    if (known == 0)
        return;
    findings->prepend(
        {KTRule::DuplicateId, KTSeverity::Error, QString(), element.position, number,
         article.view(element.name).toString(), QString(),
         QStringLiteral("the article in line %1 has the number %2 as well; the application finds "
                        "that one, and this one never")
             .arg(known)
             .arg(number)});
}

void KTCatalogueChecker::reportFile(KTRule rule, const QString &name, const KTFilePosition &position,
                                    const QString &message)
{
    report(name,
           {
               {rule, KTSeverity::Error, QString(), position, 0, QString(), QString(), message}
    });
}

void KTCatalogueChecker::report(const QString &name, const QVector<KTFinding> &findings)
{
    for (KTFinding finding : findings) {
        const std::optional<KTSeverity> severity = mySeverities.severity(finding.rule);
        if (!severity)
            continue;
        finding.severity = *severity;
        finding.file = name;
        myReceiver(finding);
    }
}
