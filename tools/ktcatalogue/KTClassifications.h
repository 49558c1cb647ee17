#pragma once

#include <QString>
#include <QStringList>
#include <QVector>

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
    /** The one with the name of the class or of the attribute. */
    static const KTClassification *ofName(const QString &name);

    QString className() const { return myClassName; }
    /** Empty for a classification that no attribute carries. */
    QString element() const { return myElement; }
    QString attribute() const { return myAttribute; }

    /** The value that the library reads from a text. */
    qint64 decode(const QString &text) const { return myDecode(text); }
    /** The keyword that the library writes for the value; the bits' keywords for a union without one. */
    QString written(qint64 value) const { return myWritten(value); }
    QString displayName(qint64 value) const { return myDisplayName(value); }
    /** The entries of the text that are no keywords. */
    QStringList unknownEntries(const QString &text) const { return myUnknownEntries(text); }
    /** What is written for the value that an unknown entry becomes; empty for nothing at all. */
    QString unknownReadAs() const { return myUnknownReadAs(); }
    /** Every value with a keyword, in ascending order. */
    QVector<KTKeywordInfo> keywords() const { return myKeywords(); }

private:
    template <typename CLASS>
    friend KTClassification classification(const char *, const char *, const char *);

    QString myClassName;
    QString myElement;
    QString myAttribute;
    qint64 (*myDecode)(const QString &);
    QString (*myWritten)(qint64);
    QString (*myDisplayName)(qint64);
    QStringList (*myUnknownEntries)(const QString &);
    QString (*myUnknownReadAs)();
    QVector<KTKeywordInfo> (*myKeywords)();
};
