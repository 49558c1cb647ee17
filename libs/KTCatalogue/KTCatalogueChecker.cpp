#include "KTCatalogueChecker.h"

#include "KTCatalogueCheckerImpl.h"
#include "KTCatalogueText.h"

#include <utility>

namespace {

/** The file as a whole. */
constexpr KTFilePosition NO_POSITION = {0, 0, 0};

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

KTCatalogueChecker::KTCatalogueChecker(Receiver receiver, const KTRuleSeverities &severities)
    : myImpl(std::make_unique<KTCatalogueCheckerImpl>(std::move(receiver), severities))
{
}

KTCatalogueChecker::~KTCatalogueChecker() = default;

void KTCatalogueChecker::setListener(const Listener &listener)
{
    myImpl->setListener(listener);
}

bool KTCatalogueChecker::check(const QString &name, QIODevice *device)
{
    return myImpl->check(name, device);
}

void KTCatalogueChecker::reportUnreadable(const QString &name, const QString &words)
{
    myImpl->reportFile(KTRule::UnreadableFile, name, NO_POSITION,
                       KTCatalogueText::tr("%1; the application has no articles from it").arg(words));
}

int KTCatalogueCheckerImpl::FirstLines::knownLine(int number, int line)
{
    constexpr int MASK = (1 << SHARED_BITS) - 1;
    int &known = myLines[number >> SHARED_BITS][static_cast<std::size_t>(number & MASK)];
    if (known == 0) {
        known = line;
        return 0;
    }
    return known;
}

KTCatalogueCheckerImpl::KTCatalogueCheckerImpl(KTCatalogueChecker::Receiver receiver,
                                               const KTRuleSeverities &severities)
    : myReceiver(std::move(receiver))
    , mySeverities(severities)
{
}

bool KTCatalogueCheckerImpl::check(const QString &name, QIODevice *device)
{
    using Item = KTCatalogueReader::Item;

    KTCatalogueReader reader(device);
    KTCatalogueArticle article;
    FirstLines lines;
    int articles = 0;
    for (;;) {
        const Item item = reader.next(&article);
        switch (item) {
        case Item::End:
            return true;
        case Item::Error: {
            const KTCatalogueError error = reader.error();
            reportFile(ruleOf(error.kind), name, error.position,
                       error.text + KTCatalogueText::tr("; the application refuses the file"));
            return false;
        }
        case Item::Root:
        case Item::Other:
            report(name, myArticleChecker.checkOther(article, item == Item::Root));
            break;
        case Item::Article: {
            QVector<KTFinding> findings = myArticleChecker.check(article);
            checkNumber(article, &lines, &findings);
            report(name, findings);
            if (myListener)
                myListener(++articles);
            break;
        }
        }
    }
}

void KTCatalogueCheckerImpl::checkNumber(const KTCatalogueArticle &article, FirstLines *lines,
                                         QVector<KTFinding> *findings) const
{
    const int number = myArticleChecker.articleId();
    if (number <= 0)
        return;
    const int known = lines->knownLine(number, article.elementRange(0).begin.line);
    if (known == 0)
        return;
    findings->prepend(
        {KTRule::DuplicateId, KTSeverity::Error, QString(), article.tagRange(0), number,
         article.root().tagName(), QString(),
         KTCatalogueText::tr("the article in line %1 has the number %2 as well; the application finds "
                             "that one, and this one never")
             .arg(known)
             .arg(number)});
}

void KTCatalogueCheckerImpl::reportFile(KTRule rule, const QString &name, const KTFilePosition &position,
                                        const QString &message)
{
    report(name,
           {
               {rule, KTSeverity::Error, QString(), {position, position}, 0, QString(), QString(), message}
    });
}

void KTCatalogueCheckerImpl::report(const QString &name, const QVector<KTFinding> &findings)
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
