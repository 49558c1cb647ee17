#pragma once

#include <QString>
#include <QStringList>
#include <QVector>

/** What the library reads from the text of a classification attribute. */
struct KTClassificationReading
{
    /** The keyword that the library writes for the value; the bits' keywords for a union without one. */
    QString written;
    QString displayName;
    /** The entries of the text that are no keywords. */
    QStringList unknown;
    /** What the library reads an unknown entry as; empty for nothing at all. */
    QString readAs;
    qint64 value = 0;
};

/** One value of a keyword table. */
struct KTKeywordInfo
{
    QString written;
    /** Further keywords, which are only read; in lower case. */
    QStringList aliases;
    qint64 value;
    QString displayName;
};

/** A classification of the library, with the attribute that carries it in a catalogue. */
class KTClassification
{
public:
    /** All of them, in the order of the attributes in the documentation. */
    static const QVector<KTClassification> &all();
    /** The one that the attribute of the element carries; null for other attributes. */
    static const KTClassification *ofAttribute(const QString &element, const QString &attribute);
    static const KTClassification *ofClass(const QString &className);

    QString className() const { return QString::fromLatin1(myClassName); }
    /** Empty for a classification that no attribute carries. */
    QString element() const { return QString::fromLatin1(myElement); }
    QString attribute() const { return QString::fromLatin1(myAttribute); }

    KTClassificationReading read(const QString &text) const { return myRead(text); }
    /** Every value with a keyword, in ascending order. */
    QVector<KTKeywordInfo> keywords() const { return myKeywords(); }
    /** Every text that can be read, sorted, in lower case. */
    QStringList readable() const;

private:
    template <typename CLASS>
    friend KTClassification classification(const char *, const char *, const char *);

    const char *myClassName;
    const char *myElement;
    const char *myAttribute;
    KTClassificationReading (*myRead)(const QString &);
    QVector<KTKeywordInfo> (*myKeywords)();
};
