#pragma once

#include <QElapsedTimer>
#include <QString>

/** One line on standard error about work that takes long; nothing at all when that is no terminal. */
class KTProgressLine
{
public:
    explicit KTProgressLine(bool isWanted);

    /** True when the line is due: after a second, and then some times in each second. */
    bool isDue() const { return myIsWanted && myTimer.elapsed() >= myNext; }
    void show(const QString &text);
    /** Makes room for other output. */
    void clear();

private:
    bool myIsWanted;
    bool myIsShown = false;
    QElapsedTimer myTimer;
    qint64 myNext;
};
