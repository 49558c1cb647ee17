#include "ConfiguratorWindow.h"

#include "CoverPreview.h"
#include "KTTestSupport.h"

#include <KTCatalogue.h>

#include <QAccessible>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QPlainTextEdit>
#include <QProcess>
#include <QRadioButton>
#include <QTemporaryDir>

#include <algorithm>
#include <memory>

namespace {

const QString SAMPLE = QStringLiteral(KT_SOURCE_DIR "/examples/catalogue.xml");

/** A window on a catalogue, and what a person finds in it by its name. */
class Desk
{
public:
    explicit Desk(const QString &fileName = SAMPLE) { open(fileName); }
    /** Opens a catalogue of these articles. */
    explicit Desk(const QByteArray &articles)
    {
        write(articles);
        open(fileName());
    }

    QString fileName() const { return myFolder.filePath(u"catalogue.xml"_s); }
    void write(const QByteArray &articles) const
    {
        QFile file(fileName());
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("<catalogue>" + articles + "</catalogue>");
    }

    /** The widget of the class that is so called by a screen reader. */
    template <typename T>
    T *find(const QString &name) const
    {
        for (T *widget : window->findChildren<T *>()) {
            if (nameOf(widget) == name)
                return widget;
        }
        qFatal("there is no '%s'", qPrintable(name));
        return nullptr;
    }
    static QString nameOf(QWidget *widget)
    {
        return QAccessible::queryAccessibleInterface(widget)->text(QAccessible::Name);
    }

    QString orderText() const { return find<QLineEdit>(u"Order text:"_s)->text(); }
    QString mcf() const { return find<QLineEdit>(u"MCF:"_s)->text(); }
    QString notice() const { return find<QPlainTextEdit>(u"Notice:"_s)->toPlainText(); }
    QComboBox *pages() const { return window->findChild<QComboBox *>(); }
    CoverPreview *cover() const { return find<CoverPreview>(u"Cover"_s); }
    /** In the middle of the spine. */
    QString coverColor() const
    {
        const QImage picture = cover()->grab().toImage();
        return picture.pixelColor(picture.rect().center()).name();
    }
    /** The lines of text, from the title to what is still open. */
    QStringList lines() const
    {
        QStringList texts;
        for (const QLabel *label : window->findChildren<QLabel *>()) {
            if (!label->buddy())
                texts.append(label->text());
        }
        texts.sort();
        return texts;
    }
    /** The options, chosen ones in brackets. */
    QString options() const
    {
        QStringList texts;
        for (QRadioButton *button : window->findChildren<QRadioButton *>()) {
            if (button->isVisible())
                texts.append(button->isChecked() ? u'[' + nameOf(button) + u']' : nameOf(button));
        }
        return texts.join(u' ');
    }
    /** The articles that the filter lets through. */
    QString found() const
    {
        const QAbstractItemModel *articles = find<QListView>(u"Found articles"_s)->model();
        QStringList texts;
        for (int row = 0; row < articles->rowCount(); ++row)
            texts.append(articles->index(row, 0).data().toString().section(u' ', 0, 0));
        return texts.join(u' ');
    }
    void filter(const QString &text) const
    {
        auto *field = find<QLineEdit>(u"Articles"_s);
        field->clear();
        QTest::keyClicks(field, text);
    }
    void enterMCF(const QString &text) const
    {
        auto *field = find<QLineEdit>(u"MCF:"_s);
        field->setFocus();
        field->selectAll();
        QTest::keyClicks(field, text);
        QTest::keyClick(field, Qt::Key_Return);
    }

private:
    void open(const QString &name)
    {
        myCatalogue = std::make_unique<KTCatalogue>(name);
        window = std::make_unique<ConfiguratorWindow>(myCatalogue.get());
        window->resize(1000, 700);
        window->show();
        window->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(window.get()));
    }

    QTemporaryDir myFolder;
    std::unique_ptr<KTCatalogue> myCatalogue;

public:
    std::unique_ptr<ConfiguratorWindow> window;
};

QByteArray book(const QByteArray &attributes, const QByteArray &children)
{
    return "<article art_id='7' name='B' " + attributes + ">" + children + "</article>";
}

/** The same with the 256 colours that are most of it, so that the file is small. */
QImage withPalette(const QImage &image)
{
    QMap<QRgb, int> counts;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            ++counts[image.pixel(x, y)];
    }
    QVector<QRgb> palette = counts.keys().toVector();
    std::stable_sort(palette.begin(), palette.end(),
                     [&](QRgb first, QRgb second) { return counts[first] > counts[second]; });
    return image.convertToFormat(QImage::Format_Indexed8, palette.mid(0, 256));
}

} // namespace

class tst_Configurator : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase() { QApplication::setFont(QFont(u"DejaVu Sans"_s, 9)); }

    void showsArticles_data()
    {
        QTest::addColumn<QString>("number");
        QTest::addColumn<QStringList>("lines");
        QTest::addColumn<QString>("options");
        QTest::addColumn<QString>("pages");
        QTest::addColumn<QString>("cover");
        const auto row = [](const char *name, const QString &number, const QStringList &lines,
                            const QString &options, const QString &pages, const QString &cover) {
            QTest::newRow(name) << number << lines << options << pages << cover;
        };
        const QString none = u"Spine: none"_s;
        const QString complete = u"The order is complete."_s;
        const QString nothing = u"There is nothing to choose."_s;
        row("centimetres, a choice open", u"7302"_s,
            {u"7302  Fotobuch Quadratisch, Leinen"_s, u"Spine: 11.0 mm"_s, u"Still open: Veredelung"_s},
            u"[Natur] Nachtblau Gold Silber"_s, u"26 Seiten, 1 of 13"_s,
            u"Back 210.0 x 210.0 mm, Spine 11.0 x 210.0 mm, Front 210.0 x 210.0 mm, "
            "With bleed 441.0 x 220.0 mm"_s);
        row("spread without spine", u"7310"_s, {u"7310  Fotobuch Mini, Heft"_s, none, complete},
            u"[Digitaldruck Matt (free)] Digitaldruck Hochglanz"_s, u"28 Seiten, 1 of 9"_s,
            u"Back 147.3 x 104.1 mm, Front 147.3 x 104.1 mm, With bleed 300.6 x 110.1 mm"_s);
        row("one side", u"4120"_s, {u"4120  Wandkalender A3 quer"_s, none, u"Still open: Kalenderleiste"_s},
            u"[Januar (free)] Juli (free) Aluminium Eiche"_s, u"13 Seiten, 1 of 1"_s,
            u"Front 420.0 x 297.0 mm, With bleed 424.0 x 301.0 mm"_s);
        row("without options and sizes", u"4135"_s,
            {u"4135  Tischkalender Panorama"_s, none, complete, nothing}, QString(), u"24 Seiten, 1 of 1"_s,
            u"The catalogue gives no page sizes."_s);
        row("without page counts", u"9024"_s,
            {u"9024  Foto 10 x 15, gl\u00e4nzend"_s, none, complete, nothing}, QString(),
            u"1 Seiten, 1 of 1"_s, u"The catalogue gives no page sizes."_s);
        row("counted in photos", u"8840"_s, {u"8840  Erinnerungsbox mit 30 Fotos"_s, none, complete},
            u"[Holzbox] Leinenbox [Graviert] Gedruckt"_s, u"5 Fotos, 1 of 30"_s,
            u"Front 165.0 x 125.0 mm, With bleed 195.0 x 155.0 mm"_s);
    }
    void showsArticles()
    {
        QFETCH(QString, number);
        const Desk desk;
        desk.filter(number);
        QCOMPARE(desk.found(), number);
        QTEST(desk.lines(), "lines");
        QTEST(desk.options(), "options");
        const QComboBox *pages = desk.pages();
        const QString place = QStringLiteral("%1 of %2").arg(pages->currentIndex() + 1).arg(pages->count());
        QTEST(QString(pages->currentText() + u", "_s + place), "pages");
        QTEST(desk.cover()->accessibleDescription().replace(u'\n', u", "_s), "cover");
        QCOMPARE(desk.notice(), QString());
    }

    void filtersArticles()
    {
        const Desk desk;
        QCOMPARE(desk.found().count(u' '), 11);
        QVERIFY(desk.lines().contains(u"7301  Fotobuch A4 Hochformat, Hardcover"_s));
        desk.filter(u"LEINEN"_s);
        QCOMPARE(desk.found(), u"7302"_s);
        QVERIFY(desk.lines().contains(u"7302  Fotobuch Quadratisch, Leinen"_s));
        desk.find<QRadioButton>(u"Nachtblau"_s)->click();
        // What is no pattern finds nothing, and nothing that was chosen is lost.
        desk.filter(u"Leinen.*"_s);
        QCOMPARE(desk.found(), QString());
        QCOMPARE(desk.orderText(), u"alcolor:blue"_s);
        desk.filter(QString());
        QCOMPARE(desk.found().count(u' '), 11);
        QCOMPARE(desk.orderText(), u"alcolor:blue"_s);
        desk.filter(u"box"_s);
        QCOMPARE(desk.found(), u"8840"_s);
        QCOMPARE(desk.orderText(), u"boxstyle:wood;coverphoto:engraved"_s);
        // Another article begins anew.
        desk.filter(u"leinen"_s);
        QCOMPARE(desk.orderText(), u"alcolor:natural"_s);
        desk.window->chooseArticle(u"9101"_s);
        QCOMPARE(desk.orderText(), u"border:none"_s);
    }

    void followsChoices()
    {
        const Desk desk;
        desk.window->chooseArticle(u"7301"_s);
        QCOMPARE(desk.options(),
                 u"[Schwarz] Rubinrot Sand [Mit Titelfoto (free)] Ohne Titelfoto (free) [Wei\u00df (free)] "
                 "Anthrazit Magnetbox, schwarz Bandbox, wei\u00df"_s);
        QCOMPARE(desk.coverColor(), u"#1a1a1a"_s);
        QVERIFY(desk.lines().contains(u"Still open: Geschenkbox"_s));
        desk.find<QRadioButton>(u"Rubinrot"_s)->click();
        desk.find<QRadioButton>(u"Bandbox, wei\u00df"_s)->click();
        QVERIFY(desk.lines().contains(u"The order is complete."_s));
        QCOMPARE(desk.orderText(),
                 u"alcolor:red;coverphoto:yes;flyleafcolor:white;giftboxcolor:white;boxstyle:ribbon"_s);
        QCOMPARE(desk.mcf(),
                 u"alcolor:red,coverphoto:yes,flyleafcolor:white,giftboxcolor;boxstyle:white;ribbon"_s);
        QCOMPARE(desk.coverColor(), u"#9b111e"_s);

        QVERIFY(desk.lines().contains(u"Spine: 7.6 mm"_s));
        QTest::keyClick(desk.pages(), Qt::Key_End);
        QCOMPARE(desk.pages()->currentText(), u"154 Seiten"_s);
        QVERIFY(desk.lines().contains(u"Spine: 20.4 mm"_s));
        const CoverPreview::Spread &spread = desk.cover()->spread();
        QCOMPARE(spread.spine, QRectF(2130, 30, 204, 2800));
        QCOMPARE(spread.front, QRectF(2334, 30, 2100, 2800));
        QCOMPARE(spread.total, QRectF(0, 0, 4464, 2860));
        // The lower edge of the barcode is 268 mm below the upper one of the back.
        QCOMPARE(spread.barcodes.size(), 1);
        QCOMPARE(spread.barcodes.constFirst().place.bottomLeft(), QPointF(150, 2710));
        QVERIFY(!spread.barcodes.constFirst().image.isNull());
    }

    void laysOutSidesThatDiffer()
    {
        const Desk desk(
            book("pages='8'",
                 "<page type='normalpage' alignment='left,right' units='mm' width='1' height='1'/>"
                 "<page type='leather' alignment='right' units='mm' width='90' height='70' "
                 "bleed_top='3' bleed_bottom='4' bleed_left='5' bleed_right='6'/>"
                 "<page type='leather' alignment='left' units='mm' width='80' height='72' "
                 "bleed_top='1' bleed_bottom='1' bleed_left='2' bleed_right='9'/>"
                 "<barcodes units='mm'><barcode pageNr='1' width='9' height='9'/>"
                 "<barcode position_x='1' position_y='9' width='2' height='8'/></barcodes>"));
        const CoverPreview::Spread &spread = desk.cover()->spread();
        QCOMPARE(spread.back, QRectF(20, 30, 800, 720));
        QCOMPARE(spread.front, QRectF(820, 30, 900, 700));
        QCOMPARE(spread.total, QRectF(0, 0, 1780, 770));
        QCOMPARE(spread.barcodes.size(), 1);
        QCOMPARE(spread.barcodes.constFirst().place, QRectF(30, 40, 20, 80));
    }

    void takesOverSavedChoices()
    {
        const Desk desk;
        desk.enterMCF(u"alcolor:gold,coverphoto:no,ribbon:red"_s);
        // It is still said when the field is left.
        desk.find<QLineEdit>(u"Order text:"_s)->setFocus();
        QCOMPARE(desk.notice(),
                 u"Article 7301 does not offer 'gold' for 'alcolor'; offered: black, red, sand.\n"
                 "Article 7301 has no option 'ribbon'; offered: alcolor, coverphoto, flyleafcolor, "
                 "giftboxcolor;boxstyle."_s);
        QCOMPARE(desk.mcf(), u"alcolor:black,coverphoto:no,flyleafcolor:white"_s);
        QVERIFY(desk.find<QRadioButton>(u"Ohne Titelfoto (free)"_s)->isChecked());
        QVERIFY(desk.find<QRadioButton>(u"Schwarz"_s)->isChecked());
        // What is then chosen is no longer spoken of.
        desk.find<QRadioButton>(u"Sand"_s)->click();
        QCOMPARE(desk.notice(), QString());
    }

    void isUsedByKeyboard()
    {
        const Desk desk;
        const auto focused = [&] { return Desk::nameOf(desk.window->focusWidget()); };
        desk.find<QLineEdit>(u"Articles"_s)->setFocus();
        QTest::keyClick(desk.window->focusWidget(), Qt::Key_Return);
        QCOMPARE(focused(), u"Found articles"_s);
        QTest::keyClick(desk.window->focusWidget(), Qt::Key_Down);
        QVERIFY(desk.lines().contains(u"7302  Fotobuch Quadratisch, Leinen"_s));
        QStringList names;
        for (int i = 0; i < 7; ++i) {
            QTest::keyClick(desk.window->focusWidget(), Qt::Key_Tab);
            names.append(focused());
        }
        QCOMPARE(names.join(u' '), u"Options Natur Gold 26 Seiten Order text: MCF: Notice:"_s);
        desk.find<QRadioButton>(u"Natur"_s)->setFocus();
        QTest::keyClick(desk.window->focusWidget(), Qt::Key_Down);
        QCOMPARE(desk.orderText(), u"alcolor:blue"_s);
        desk.find<QRadioButton>(u"Gold"_s)->setFocus();
        QTest::keyClick(desk.window->focusWidget(), Qt::Key_Space);
        QCOMPARE(desk.orderText(), u"alcolor:blue;spotcolor:gold"_s);
    }

    void bearsWhatIsWrong_data()
    {
        QTest::addColumn<QByteArray>("articles");
        QTest::addColumn<QString>("notice");
        QTest::addColumn<int>("rows");
        QTest::addColumn<bool>("isDrawn");
        const auto row = [](const char *name, const QByteArray &articles, const QString &notice, int rows,
                            bool isDrawn) { QTest::newRow(name) << articles << notice << rows << isDrawn; };
        const auto page = [](const QByteArray &attributes) {
            return book({}, "<page type='fullcover' alignment='left,right' units='mm' " + attributes + "/>");
        };
        const QByteArray sized
            = "<page type='fullcover' alignment='left,right' units='mm' width='9' height='9'/>";
        row("no article", {}, u"The catalogue has no articles."_s, 1, false);
        row("too many page counts", book("pages='1' max_pages='2147483647' page_step='1'", {}),
            u"Of 2147483647 page counts only the least one is offered."_s, 1, false);
        row("backward page counts", book("pages='9' max_pages='5' page_step='-2'", {}),
            u"Article 7 cannot have 9 pages; no page count is valid."_s, 3, false);
        row("page counts that end before they begin", book("pages='9' max_pages='5' page_step='2'", {}),
            u"Article 7 cannot have 9 pages; no page count is valid."_s, 0, false);
        row("no width", page("width='0' height='9'"), QString(), 1, false);
        row("smallest size", page("width='1' height='1'"), QString(), 1, true);
        row("largest size", page("width='5000' height='5000'"), QString(), 1, true);
        row("too large", page("width='5000.1' height='9'"), QString(), 1, false);
        row("negative bleed", page("width='9' height='9' bleed_top='-1'"), QString(), 1, false);
        row("infinite spine",
            book({}, sized + "<composition units='mm'><spine base_width='1e300'/></composition>"), QString(),
            1, false);
        row("barcodes beyond the sheet",
            book({},
                 sized
                     + "<barcodes units='mm'><barcode position_x='-1e9' position_y='0' width='1e9'/>"
                       "<barcode position_x='-1e9' position_y='9' width='1e10' height='1e10'/></barcodes>"),
            QString(), 1, true);
    }
    void bearsWhatIsWrong()
    {
        QFETCH(QByteArray, articles);
        const Desk desk(articles);
        QTEST(desk.notice(), "notice");
        QTEST(desk.pages()->count(), "rows");
        QTEST(!desk.cover()->spread().total.isNull(), "isDrawn");
        QVERIFY(desk.cover()->spread().barcodes.isEmpty());
        desk.window->grab();
        QVERIFY(desk.window->minimumSizeHint().width() < 1000
                && desk.window->minimumSizeHint().height() < 700);
    }

    void showsNamesAsTheyStand()
    {
        const QByteArray name = "&lt;b>R &amp; B&#10;" + QByteArray(1000, 'x');
        const Desk desk("<article art_id='7' name='" + name + "'><forms><form key='" + name
                        + "' value='v' color='#80ff0000'/>"
                          "<form key='k' value='&amp;1' value_name='"
                        + name + "'/></forms></article>");
        const QString shown = u"<b>R & B "_s + QString(1000, u'x');
        QVERIFY(desk.lines().contains(u"7  "_s + shown));
        QCOMPARE(desk.options(), u"v "_s + shown);
        QVERIFY(desk.window->minimumSizeHint().width() < 1000);
        // A translucent swatch lets white and grey chequers through.
        const QImage swatch = desk.find<QRadioButton>(u"v"_s)->icon().pixmap(16, 16).toImage();
        QCOMPARE(swatch.pixelColor(5, 2).name(), u"#ff7f7f"_s);
        QCOMPARE(swatch.pixelColor(2, 2).name(), u"#e06060"_s);
        QCOMPARE(swatch.pixelColor(5, 5), swatch.pixelColor(2, 2));
    }

    void saysThatTheFileWasChanged()
    {
        Desk desk(QByteArrayLiteral("<article art_id='7'/><article art_id='8'/>"));
        desk.write("<article art_id='8' name='other'/>");
        desk.filter(u"8"_s);
        QCOMPARE(desk.notice(), u"the file was changed after it had been opened"_s);
        QVERIFY(desk.lines().contains(u"Still open: article"_s));
    }

    /** Written into the file that KT_SCREENSHOT names: the picture in README.md. */
    void hasItsPictureTaken()
    {
        const QString fileName = qEnvironmentVariable("KT_SCREENSHOT");
        if (fileName.isEmpty())
            QSKIP("no picture is wanted");
        const Desk desk;
        QTest::keyClick(desk.pages(), Qt::Key_End);
        desk.enterMCF(u"alcolor:red,giftboxcolor;boxstyle:white;ribbon,flyleafcolor:gold"_s);
        QVERIFY(withPalette(desk.window->grab().toImage()).save(fileName));
    }

    void refusesArticles_data()
    {
        const KTTest::Rows<QString> row;
        row("1");
        row("7301a");
        row("0");
        row("-7301");
    }
    void refusesArticles()
    {
        const auto [number] = KTTest::row<QString>();
        const Desk desk;
        desk.window->chooseArticle(number);
        QCOMPARE(desk.notice(), u"The catalogue has no article '%1'."_s.arg(number));
        QVERIFY(desk.lines().contains(u"7301  Fotobuch A4 Hochformat, Hardcover"_s));
    }

    void refusesFiles_data()
    {
        const KTTest::Rows<QString, QString, int> row;
        row("no arguments", "", "Usage: configurator CATALOGUE [ARTICLE]\n", 64);
        row("no file", "missing.xml", "missing.xml: the file cannot be opened: No such file or directory\n",
            1);
        row("broken file", "broken.xml", "broken.xml: line 2: ", 1);
    }
    void refusesFiles()
    {
        const auto [argument, said, code] = KTTest::row<QString, QString, int>();
        const QTemporaryDir folder;
        QFile broken(folder.filePath(u"broken.xml"_s));
        QVERIFY(broken.open(QIODevice::WriteOnly) && broken.write("<catalogue>\n<article></catalogue>") > 0);
        broken.close();
        QProcess program;
        program.setWorkingDirectory(folder.path());
        program.start(QStringLiteral(KT_CONFIGURATOR), argument.split(u' ', Qt::SkipEmptyParts));
        QVERIFY(program.waitForFinished());
        const QString output = QString::fromUtf8(program.readAllStandardError());
        QVERIFY2(output.contains(said), qPrintable(output));
        QCOMPARE(program.exitCode(), code);
    }
};

QTEST_MAIN(tst_Configurator)
#include "tst_Configurator.moc"
