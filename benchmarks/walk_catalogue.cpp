#include <QFile>
#include <QXmlStreamReader>

#include <cstdio>

/** Walks through an XML file and does nothing else: what reading costs at the least. */
int main(int argc, char *argv[])
{
    QFile file(QString::fromLocal8Bit(argc == 2 ? argv[1] : ""));
    if (!file.open(QIODevice::ReadOnly)) {
        std::fputs("usage: walk_catalogue FILE\n", stderr);
        return 64;
    }
    QXmlStreamReader reader(&file);
    reader.setNamespaceProcessing(false);
    while (!reader.atEnd())
        reader.readNext();
    return reader.hasError() ? 2 : 0;
}
