/*
 * The window of a shop in which an employee configures a photo product with the customer.
 *
 *     configurator catalogue.xml 7301
 */
#include "ConfiguratorWindow.h"

#include <KTCatalogue.h>

#include <QApplication>
#include <QTextStream>

int main(int argc, char *argv[])
{
    const QApplication application(argc, argv);
    const QStringList arguments = QApplication::arguments();
    QTextStream err(stderr);
    if (arguments.size() < 2 || arguments.size() > 3) {
        err << "Usage: configurator CATALOGUE [ARTICLE]\n";
        return 64;
    }

    KTCatalogue catalogue(arguments.at(1));
    const KTCatalogueError error = catalogue.error();
    if (error.kind != KTCatalogueErrorKind::None) {
        err << arguments.at(1) << ": ";
        if (error.kind != KTCatalogueErrorKind::Unreadable)
            err << "line " << error.position.line << ": ";
        err << error.text << '\n';
        return 1;
    }

    ConfiguratorWindow window(&catalogue);
    if (arguments.size() == 3)
        window.chooseArticle(arguments.at(2));
    window.resize(1000, 700);
    window.show();
    return QApplication::exec();
}
