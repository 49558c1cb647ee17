#pragma once

#include "KTArticleChecker.h"
#include "KTCatalogueChecker.h"

#include <QHash>

#include <array>

/** See KTCatalogueChecker. Not part of the library's interface. */
class KTCatalogueCheckerImpl
{
public:
    KTCatalogueCheckerImpl(KTCatalogueChecker::Receiver receiver, const KTRuleSeverities &severities);

    void setListener(const KTCatalogueChecker::Listener &listener) { myListener = listener; }
    bool check(const QString &name, QIODevice *device);
    void reportFile(KTRule rule, const QString &name, const KTFilePosition &position, const QString &message);

private:
    /** The line of the first article with each number; neighbouring numbers share one entry. */
    class FirstLines
    {
    public:
        /** The line that the number is known from, or 0 when it was not; then it is now. */
        int knownLine(int number, int line);

    private:
        static constexpr int SHARED_BITS = 4;
        QHash<int, std::array<int, 1 << SHARED_BITS>> myLines;
    };

    void checkNumber(const KTCatalogueArticle &article, FirstLines *lines,
                     QVector<KTFinding> *findings) const;
    void report(const QString &name, const QVector<KTFinding> &findings);

    KTCatalogueChecker::Receiver myReceiver;
    KTCatalogueChecker::Listener myListener;
    KTRuleSeverities mySeverities;
    KTArticleChecker myArticleChecker;
};
