// The model of the file: nothing is written but by a save or a deletion, and then just that.

#include <QFile>

#include "walk/walk_controls.h"
#include "walk/walk_model.h"

namespace padral::pruebas {

namespace {

const QString Declaraciones = QStringLiteral("TDeclaraciones");
constexpr qint32 Cambio2014 = 20140101;

/// Since 2014 some answers are given up with the save.
Retrato paraGuardar(Retrato retrato) {
    if (retrato.value(QStringLiteral("G.FECHAVIGOR")).toInt() < Cambio2014) return retrato;
    retrato[QStringLiteral("4.IRPFOBJET")].clear();
    retrato[QStringLiteral("5.IRPFOBJETIVA")] = u'N';
    retrato[QStringLiteral("A.OpcionApl")].clear();
    return retrato;
}

}  // namespace

void ModeloDelPaseo::cotejarFichero(const Accion& accion, const Momento& ahora) {
    QFile f(fichero_);
    if (!f.open(QIODevice::ReadOnly)) return falta(QStringLiteral("the file is gone"));
    const QByteArray bytes = f.readAll();
    const bool ordenGuardar = accion.control == QStringLiteral("cmdAceptar") ||
                              accion.control == QStringLiteral("cmdImprimir") ||
                              accion.control == QStringLiteral("PicOKey");
    const bool sale = ahora.formulario.isEmpty() || ahora.formulario == QStringLiteral("FrmImOf");
    const bool guarda = antes_.formulario == QStringLiteral("FrmDatGen") && ordenGuardar && sale &&
                        antes_.pendientes;
    if (!guarda && bytes == bytes_) return;
    bytes_ = bytes;
    const Almacen nuevo = LeerAlmacen(fichero_);
    if (guarda)
        cotejarGuardada(nuevo);
    else if (antes_.formulario == QStringLiteral("FrmDecLista"))
        cotejarBorrada(nuevo);
    else
        cotejarOtras(nuevo, {});
    almacen_ = nuevo;
}

void ModeloDelPaseo::cotejarGuardada(const Almacen& nuevo) {
    ++Guardadas;
    qint64 clave = antes_.csde;
    if (clave == 0) {
        QList<qint64> claves = nuevo.value(Declaraciones).keys();
        for (const qint64 vieja : almacen_.value(Declaraciones).keys()) claves.removeAll(vieja);
        if (claves.size() != 1)
            return falta(QStringLiteral("%1 new declarations after a save").arg(claves.size()));
        clave = claves.first();
    }
    Retrato retrato = paraGuardar(antes_.retrato);
    const auto* mando = MandoDe(antes_.formulario, antes_.pendiente);
    if (mando && espera_) retrato[mando->propiedad] = *espera_;
    const auto filas = FilasEsperadas(retrato, antes_.marcas);
    for (const auto& d : Diferencias(filas, FilasDe(nuevo, clave)) +
                             Diferencias(ParticipesEsperados(retrato), ParticipesDe(nuevo, clave)))
        falta(QStringLiteral("saved: ") + d);
    cotejarOtras(nuevo, {clave});
}

void ModeloDelPaseo::cotejarBorrada(const Almacen& nuevo) {
    QList<qint64> claves = almacen_.value(Declaraciones).keys();
    for (const qint64 queda : nuevo.value(Declaraciones).keys()) claves.removeAll(queda);
    if (claves.isEmpty()) return cotejarOtras(nuevo, {});
    ++Borradas;
    if (claves.size() > 1) falta(QStringLiteral("%1 declarations are gone").arg(claves.size()));
    if (!ParticipesDe(nuevo, claves.first()).isEmpty())
        falta(QStringLiteral("participants of a declaration that is gone"));
    cotejarOtras(nuevo, claves);
}

void ModeloDelPaseo::cotejarOtras(const Almacen& nuevo, const QList<qint64>& salvo) {
    const auto otras = [&](TablaLeida filas) {
        filas.removeIf([&](TablaLeida::iterator i) {
            return salvo.contains(i->value(QStringLiteral("csde")).toLongLong());
        });
        return filas;
    };
    for (auto i = almacen_.begin(); i != almacen_.end(); ++i)
        if (otras(i.value()) != otras(nuevo.value(i.key())))
            falta(i.key() + QStringLiteral(" has changed where nothing was saved"));
}

}  // namespace padral::pruebas
