#pragma once

#include <KTFinding.h>

#include <QFile>

#include <memory>

/** How many findings of each severity a file has. */
struct KTFindingCounts
{
    int errors = 0;
    int warnings = 0;
    int hints = 0;
    /** Files that could not be read to their end. */
    int unreadable = 0;

    void add(KTSeverity severity);
    void add(const KTFindingCounts &other);
    int total() const { return errors + warnings + hints; }
    /** "2 errors, 1 warning", or "nothing found". */
    QString toText() const;
};

/** Writes findings one by one to standard output, as lines of text or as one document. */
class KTFindingWriter
{
public:
    /** Null for a format that does not exist; color is for the text only. */
    static std::unique_ptr<KTFindingWriter> create(const QString &format, bool color);
    static QStringList formats();

    virtual ~KTFindingWriter();
    KTFindingWriter(const KTFindingWriter &) = delete;
    KTFindingWriter &operator=(const KTFindingWriter &) = delete;

    virtual void begin() { }
    virtual void write(const KTFinding &finding) = 0;
    virtual void end(const KTFindingCounts &counts) = 0;
    /** False when anything could not be written. */
    bool flush();
    /** True when that is because nobody reads the output any more. */
    bool isReaderGone() const { return myIsReaderGone; }

protected:
    KTFindingWriter();
    void print(const QString &text);

private:
    void fail();

    QFile myOutput;
    bool myIsComplete;
    bool myIsReaderGone = false;
};
