#include "ui/qt_language.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QTranslator>

// A resource of a static library is not registered by itself.
static void registrarTextosQt() { Q_INIT_RESOURCE(qt_texts); }

namespace padral {

namespace {

const QString Nombre = QStringLiteral("textosQt");

void quitarAnteriores() {
    const auto anteriores = QCoreApplication::instance()->findChildren<QTranslator*>(
        Nombre, Qt::FindDirectChildrenOnly);
    // Deleting a translator also takes it out of the application.
    for (QTranslator* anterior : anteriores) delete anterior;
}

// A file that is not there leaves the texts in English; it is no reason not to start.
void poner(const QString& fichero) {
    auto* textos = new QTranslator(QCoreApplication::instance());
    textos->setObjectName(Nombre);
    if (textos->load(fichero)) QCoreApplication::installTranslator(textos);
}

}  // namespace

void InstalarTraduccionQt(const QString& idi) {
    registrarTextosQt();
    quitarAnteriores();
    if (idi == u"E") {
        poner(QStringLiteral(":/padral/qt/qtbase_eu.qm"));
        return;
    }
    poner(QLibraryInfo::path(QLibraryInfo::TranslationsPath) + QStringLiteral("/qtbase_es.qm"));
    // The last one installed is asked first: it fills the gaps of the one before.
    poner(QStringLiteral(":/padral/qt/qtbase_es_more.qm"));
}

}  // namespace padral
