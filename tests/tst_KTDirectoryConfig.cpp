#include <KTDirectoryConfig.h>

#include "KTMessageRecorder.h"
#include "KTTestSupport.h"

#include <sys/stat.h>

class tst_KTDirectoryConfig : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase()
    {
        for (const char *const folder : {"root/icons", "root-other"})
            QVERIFY(QDir().mkpath(path(folder)));
        for (const char *const name : {"root/plain.png", "root/icons/a b.png", "root-other/neighbour.png"}) {
            QFile file(path(name));
            QVERIFY(file.open(QIODevice::WriteOnly));
        }
        QVERIFY(QFile::link(path("root/plain.png"), path("root/icons/inside")));
        QVERIFY(QFile::link(path("root-other"), path("root/neighbour")));
        QVERIFY(QFile::link(path("root/loop"), path("root/loop")));
        QVERIFY(QFile::link(u"/dev/null"_s, path("root/device")));
        QCOMPARE(mkfifo(QFile::encodeName(path("root/fifo")).constData(), 0600), 0);
    }

    void findsOnlyFilesBelowTheRoot_data()
    {
        const KTTest::Rows<QString, QString> row;
        row("plain.png", "root/plain.png");
        row("icons//a b.png", "root/icons/a b.png");
        row("icons/inside", "root/plain.png");
        for (const char *const refused :
             {"plain", "", ".", "icons", "loop", "device", "fifo", "icons/../plain.png",
              "../root-other/neighbour.png", "neighbour/neighbour.png", "/plain.png", "/icons/a b.png"})
            row(refused, "");
        row("absolute", path("root/plain.png"), "");
        row("NUL", u"plain.png"_s + QChar::Null, "");
        row("too long", QString(100000, u'x'), "");
    }
    void findsOnlyFilesBelowTheRoot()
    {
        const auto [name, file] = KTTest::row<QString, QString>();
        const KTMessageRecorder recorder;
        KTDirectoryConfig config;
        config.setResourceRoot(path("root"));
        QCOMPARE(config.resource(name, false), file.isEmpty() ? file : path("") + file);
        config.setResourceRoot(QString());
        QCOMPARE(config.resource(name, true), QString());
        QVERIFY(recorder.messages().isEmpty());
    }

    void choosesTheRoot()
    {
        const QString name = u"icons/picshelf/dummy-barcode.png"_s;
        const QString found = KTDirectoryConfig::instance()->resource(name, false);
        QVERIFY2(found.endsWith(QStringLiteral("share/" KT_PACKAGE "/") + name), qPrintable(found));
        // What the root has not comes from the installed folder, also where there is no root.
        KTDirectoryConfig other;
        for (const QString &root : {path("root"), path("missing"), QString()}) {
            other.setResourceRoot(root);
            QCOMPARE(other.resource(name, false), found);
        }
        QVERIFY(QDir(path("root")).mkpath(u"icons/picshelf"_s) && QFile::copy(found, path("root/") + name));
        // A relative root stays where it was.
        const QString before = QDir::currentPath();
        QVERIFY(QDir::setCurrent(path("")));
        other.setResourceRoot(u"./root"_s);
        qputenv("KTPRODUCTBASE_RESOURCES", "root");
        const KTDirectoryConfig relative;
        QVERIFY(QDir::setCurrent(before));
        for (const KTDirectoryConfig *const config : {&relative, &std::as_const(other)}) {
            QCOMPARE(config->resourceRoot(), path("root"));
            QCOMPARE(config->resource(name, false), path("root/") + name);
        }
        qputenv("KTPRODUCTBASE_RESOURCES", QFile::encodeName(path("root/plain.png")));
        const KTMessageRecorder recorder;
        QCOMPARE(KTDirectoryConfig().resource(name, false), found);
        QCOMPARE(recorder.messages().size(), 1);
        // Files may lie right below the file system's root.
        KTDirectoryConfig config;
        config.setResourceRoot(u"/"_s);
        QCOMPARE(config.resource(path("root/plain.png").mid(1), false), path("root/plain.png"));
    }

private:
    QString path(const char *name) const
    {
        return QFileInfo(myFolder.path()).canonicalFilePath() + QLatin1Char('/') + QString::fromUtf8(name);
    }

    QTemporaryDir myFolder;
};

QTEST_APPLESS_MAIN(tst_KTDirectoryConfig)
#include "tst_KTDirectoryConfig.moc"
