#include "KTReportArticle.h"

#include <algorithm>

QString KTReportArticle::anchor() const
{
    const bool isSecond = std::any_of(findings.begin(), findings.end(), [](const KTFinding &finding) {
        return finding.rule == KTRule::DuplicateId;
    });
    QString name = QStringLiteral("a%1").arg(article.articleId().id());
    if (isSecond || !article.articleId().isValid())
        name += QStringLiteral("-%1").arg(source->elementRange(0).begin.offset);
    return name;
}

QString KTReportArticle::number() const
{
    return article.articleId().isValid() ? QString::number(article.articleId().id()) : QString();
}

bool KTReportArticle::isNew() const
{
    return std::any_of(differences.begin(), differences.end(), [](const KTDifference &difference) {
        return difference.rule == KTDifferenceRule::ArticleAdded;
    });
}
