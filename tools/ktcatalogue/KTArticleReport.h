#pragma once

#include <KTArticleId.h>
#include <KTConfiguredArticleVariantList.h>

#include <QJsonObject>

class QDomElement;

/** What the library makes of one article of a catalogue, for people and for programs. */
class KTArticleReport
{
public:
    explicit KTArticleReport(const QDomElement &article);

    KTArticleId articleId() const { return myId; }
    const KTConfiguredArticleVariantList &options() const { return myOptions; }

    /** Several lines, ready for a terminal. */
    QString toText() const;
    QJsonObject toJSON() const;

private:
    KTArticleId myId;
    QString myName;
    KTConfiguredArticleVariantList myOptions;
};
