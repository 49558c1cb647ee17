#include "KTReportSource.h"

#include "KTConsole.h"
#include "KTToolText.h"

#include <KTCatalogueChecker.h>
#include <KTCatalogueReader.h>

#include <algorithm>

namespace {

/** A device that several readers share, each of which has a place of its own in it. */
class SharedDevice : public QIODevice
{
public:
    explicit SharedDevice(QIODevice *device)
        : myDevice(device)
    {
        open(QIODevice::ReadOnly | QIODevice::Unbuffered);
    }
    bool isSequential() const override { return false; }
    qint64 size() const override { return myDevice->size(); }

protected:
    qint64 readData(char *data, qint64 maximum) override
    {
        const qint64 length = myDevice->seek(pos()) ? myDevice->read(data, maximum) : -1;
        if (length < 0)
            setErrorString(myDevice->errorString());
        return length;
    }
    qint64 writeData(const char *, qint64) override { return -1; }

private:
    QIODevice *myDevice;
};

QDataStream &operator<<(QDataStream &stream, const KTFilePosition &position)
{
    return stream << position.line << position.column << position.offset;
}

QDataStream &operator>>(QDataStream &stream, KTFilePosition &position)
{
    return stream >> position.line >> position.column >> position.offset;
}

} // namespace

KTReportSource::KTReportSource(const QString &name, const QString &olderName)
    : myName(name)
    , myOlderName(olderName)
    , myFile(name)
{
}

KTReportSource::~KTReportSource() = default;

KTExitCode KTReportSource::fail(const QString &reason) const
{
    return KTConsole::fail(KTExitUnreadable, QStringLiteral("%1: error: %2").arg(myName, reason));
}

std::optional<KTExitCode> KTReportSource::prepare()
{
    if (!myFile.error().isEmpty())
        return fail(myFile.error());
    if (const auto code = check())
        return code;
    if (myOlderName.isEmpty())
        return std::nullopt;
    myOlder = std::make_unique<KTComparedCatalogue>(myOlderName);
    if (const auto code = myOlder->reportFailure())
        return code;
    myNewerDevice = std::make_unique<SharedDevice>(myFile.device());
    myNewer = std::make_unique<KTCatalogueIndex>(myNewerDevice.get());
    if (myNewer->error().kind != KTCatalogueErrorKind::None)
        return fail(myNewer->error().text);
    myComparison = std::make_unique<KTCatalogueComparison>(myOlder->index(), myNewer.get());
    return std::nullopt;
}

std::optional<KTExitCode> KTReportSource::check()
{
    if (!myFindings.open())
        return fail(KTToolText::tr("no room for the findings: %1").arg(myFindings.errorString()));
    myFindingStream.setDevice(&myFindings);
    KTProgressLine progress(true);
    KTFinding last;
    KTCatalogueChecker checker([&](const KTFinding &finding) {
        last = finding;
        keep(finding);
    });
    checker.setListener([&](int articles) {
        myArticleCount = articles;
        if (progress.isDue())
            progress.show(KTToolText::tr("%1: %2 articles").arg(myName, QString::number(articles)));
    });
    SharedDevice device(myFile.device());
    const bool isCatalogue = checker.check(myName, &device);
    progress.clear();
    if (!isCatalogue) {
        // The last finding is that the file is none.
        return KTConsole::fail(KTExitUnreadable,
                               QStringLiteral("%1:%2:%3: error: %4")
                                   .arg(myName, QString::number(last.range.begin.line),
                                        QString::number(last.range.begin.column), last.message));
    }
    if (!myFindings.flush() || myFindingStream.status() != QDataStream::Ok)
        return fail(KTToolText::tr("no room for the findings: %1").arg(myFindings.errorString()));
    return std::nullopt;
}

void KTReportSource::keep(const KTFinding &finding)
{
    ++myFindingCount;
    myFindingStream << static_cast<int>(finding.rule) << static_cast<int>(finding.severity)
                    << finding.range.begin << finding.range.end << finding.articleId << finding.element
                    << finding.attribute << finding.message;
}

std::optional<KTFinding> KTReportSource::nextFinding()
{
    if (myFindingsLeft == 0)
        return std::nullopt;
    --myFindingsLeft;
    int rule = 0;
    int severity = 0;
    KTFinding finding;
    myFindingStream >> rule >> severity >> finding.range.begin >> finding.range.end >> finding.articleId
        >> finding.element >> finding.attribute >> finding.message;
    finding.rule = static_cast<KTRule>(rule);
    finding.severity = static_cast<KTSeverity>(severity);
    finding.file = myName;
    return finding;
}

std::optional<KTExitCode> KTReportSource::forEachArticle(const Receiver &receiver)
{
    SharedDevice device(myFile.device());
    KTCatalogueReader reader(&device);
    if (!myFindings.seek(0))
        return fail(myFindings.errorString());
    myFindingStream.resetStatus();
    myFindingsLeft = myFindingCount;
    KTProgressLine progress(true);
    std::optional<KTFinding> finding = nextFinding();
    const auto giveOutside = [&] {
        if (receiver.outside)
            receiver.outside(*finding);
        finding = nextFinding();
    };
    KTCatalogueArticle source;
    int count = 0;
    while (reader.nextArticle(&source) == KTCatalogueReader::Item::Article) {
        ++count;
        if (progress.isDue())
            progress.show(KTToolText::tr("%1: %2 of %3 articles")
                              .arg(myName, QString::number(count), QString::number(myArticleCount)));
        const KTFileRange range = source.elementRange(0);
        while (finding && finding->range.begin.offset < range.begin.offset)
            giveOutside();
        KTReportArticle article;
        article.source = &source;
        for (; finding && finding->range.begin.offset < range.end.offset; finding = nextFinding())
            article.findings.append(*finding);
        article.article = KTArticle(source);
        if (!receiver.isWanted(article.article))
            continue;
        if (const auto code = compare(&article)) {
            progress.clear();
            return code;
        }
        receiver.article(article);
    }
    while (finding)
        giveOutside();
    progress.clear();
    if (reader.error().kind != KTCatalogueErrorKind::None || count != myArticleCount
        || myFindingStream.status() != QDataStream::Ok)
        return fail(KTToolText::tr("it has changed since it was read first"));
    return std::nullopt;
}

std::optional<KTExitCode> KTReportSource::compare(KTReportArticle *article)
{
    // Of several articles with one number the application finds the first one, so that is compared.
    const bool isSecond
        = std::any_of(article->findings.begin(), article->findings.end(),
                      [](const KTFinding &finding) { return finding.rule == KTRule::DuplicateId; });
    if (!myComparison || isSecond || !article->article.articleId().isValid())
        return std::nullopt;
    const int articleId = article->article.articleId().id();
    if (myComparison->compare(myOlder->index()->find(articleId), myNewer->find(articleId),
                              &article->differences))
        return std::nullopt;
    const std::optional<KTExitCode> code = myOlder->reportFailure();
    return code ? code : fail(myNewer->error().text);
}

std::optional<KTExitCode>
KTReportSource::forEachRemoved(const std::function<void(const KTDifference &difference)> &function)
{
    for (int place = 0; myComparison && place < myOlder->index()->size(); ++place) {
        if (myNewer->find(myOlder->index()->articleId(place)) >= 0)
            continue;
        QVector<KTDifference> differences;
        if (!myComparison->compare(place, -1, &differences))
            return myOlder->reportFailure();
        for (const KTDifference &difference : qAsConst(differences))
            function(difference);
    }
    return std::nullopt;
}
