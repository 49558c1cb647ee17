#include "KTTranslation.h"

#include "KTDirectoryConfig.h"

#include <QCoreApplication>
#include <QPointer>
#include <QTranslator>

#include <memory>

bool KTTranslation::install(const QLocale &locale)
{
    // The application owns what is installed, so it may be gone with a former one.
    static QPointer<QTranslator> myInstalled;
    QCoreApplication *const application = QCoreApplication::instance();
    if (!application)
        return false;
    std::unique_ptr<QTranslator> translator;
    if (locale.language() != QLocale::German) {
        const QString language = locale.name().section(u'_', 0, 0);
        const QString file = KTDirectoryConfig::instance()->resource(
            QStringLiteral("translations/ktproductbase_%1.qm").arg(language), false);
        translator = std::make_unique<QTranslator>(application);
        if (file.isEmpty() || !translator->load(file))
            return false;
    }
    delete myInstalled.data();
    if (translator)
        QCoreApplication::installTranslator(translator.get());
    myInstalled = translator.release();
    return true;
}
