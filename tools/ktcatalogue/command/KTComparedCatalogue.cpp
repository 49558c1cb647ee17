#include "KTComparedCatalogue.h"

#include "KTConsole.h"

KTComparedCatalogue::KTComparedCatalogue(const QString &name, std::optional<int> articleId)
    : myFile(name)
{
    if (!myFile.error().isEmpty())
        return;
    KTProgressLine progress(true);
    myIndex = std::make_unique<KTCatalogueIndex>(myFile.device(), articleId, [&](int articles) {
        if (progress.isDue())
            progress.show(QStringLiteral("%1: %2 articles").arg(name, QString::number(articles)));
    });
    progress.clear();
}

std::optional<KTExitCode> KTComparedCatalogue::reportFailure() const
{
    if (!myIndex)
        return KTConsole::fail(KTExitUnreadable,
                               QStringLiteral("%1: error: %2").arg(myFile.name(), myFile.error()));
    const KTCatalogueError &error = myIndex->error();
    if (error.kind == KTCatalogueErrorKind::None)
        return std::nullopt;
    return KTConsole::fail(KTExitUnreadable,
                           QStringLiteral("%1:%2:%3: error: %4")
                               .arg(myFile.name(), QString::number(error.position.line),
                                    QString::number(error.position.column), error.text));
}
