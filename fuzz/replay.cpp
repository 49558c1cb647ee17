#include "KTFuzz.h"

#include <QDir>
#include <QFile>

#include <cstdio>

// Runs each target on the files of its folder in the corpus given; one that is missing or empty is a fault.
int main(int argc, char **argv)
{
    KTFuzz::setUp();
    for (const auto &[target, run] : KTFuzz::TARGETS) {
        const QDir folder(QString::fromLocal8Bit(argv[argc - 1]) + u'/' + QString::fromLatin1(target));
        const QStringList names = folder.entryList(QDir::Files, QDir::Name);
        for (const QString &name : names) {
            QFile file(folder.filePath(name));
            KT_REQUIRE(file.open(QIODevice::ReadOnly));
            std::printf("%s/%s\n", target, qPrintable(name));
            std::fflush(stdout);
            const QByteArray input = file.readAll();
            run({input.begin(), input.end()});
        }
        KT_REQUIRE(!names.isEmpty());
    }
    return 0;
}
