#pragma once

#include <QHash>
#include <QMetaEnum>
#include <QString>

/** The keyword table in its plainest form: QHash, trimmed(), toLower(), split() and join(). */
class KTLiteralArticleClasses
{
public:
    void insert(const QString &keyword, qint64 value);
    qint64 decode(const QString &text, qint64 fallback) const;
    qint64 decodeCSV(const QString &text) const;
    QString encode(qint64 value) const;
    QString encodeCSV(qint64 value) const;

private:
    QHash<QString, qint64> myKeywordToValue;
    QHash<qint64, QString> myValueToKeyword;
};

/** A perfect hash generated from the keywords, with what it takes to ask it for a QString in any letter case.
 */
class KTGperfArticleClasses
{
public:
    qint64 decode(const QString &text, qint64 fallback) const;
    qint64 decodeCSV(const QString &text) const;
};

/** QMetaEnum with the conversions from and to QString. Its values are ints: see KTArticleClassMetaEnum.h. */
class KTMetaEnumArticleClasses
{
public:
    KTMetaEnumArticleClasses();
    int decode(const QString &text, int fallback) const;
    int decodeCSV(const QString &text) const;
    QString encode(int value) const;
    QString encodeCSV(int value) const;

private:
    QMetaEnum myRead;
    QMetaEnum myWritten;
};
