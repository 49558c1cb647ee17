#include "KTTranslation.h"

#include "KTDirectoryConfig.h"

#include <QCoreApplication>
#include <QPointer>
#include <QThread>
#include <QTranslator>

#include <memory>
#include <utility>
#include <vector>

namespace {

/** Each with the language in which its texts stand in the sources. */
constexpr std::pair<const char *, QLocale::Language> SOURCES[] = {
    {"ktproductbase", QLocale::German },
    {"ktcatalogue",   QLocale::English},
};

} // namespace

bool KTTranslation::install(const QLocale &locale)
{
    // The application owns what is installed, so it may be gone with a former one.
    static std::vector<QPointer<QTranslator>> myInstalled;
    QCoreApplication *const application = QCoreApplication::instance();
    if (!application || QThread::currentThread() != application->thread())
        return false;
    const QString language = locale.name().section(u'_', 0, 0);
    std::vector<std::unique_ptr<QTranslator>> translators;
    for (const auto &[name, sourceLanguage] : SOURCES) {
        if (locale.language() == sourceLanguage)
            continue;
        const QString file = KTDirectoryConfig::instance()->resource(
            QStringLiteral("translations/%1_%2.qm").arg(QString::fromLatin1(name), language), false);
        translators.push_back(std::make_unique<QTranslator>(application));
        if (file.isEmpty() || !translators.back()->load(file))
            return false;
    }
    for (const QPointer<QTranslator> &former : myInstalled)
        delete former.data();
    myInstalled.clear();
    for (std::unique_ptr<QTranslator> &translator : translators) {
        QCoreApplication::installTranslator(translator.get());
        myInstalled.emplace_back(translator.release());
    }
    return true;
}
