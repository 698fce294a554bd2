#include "walk/walk_model.h"

#include <QApplication>
#include <QFile>
#include <algorithm>

#include "walk/walk_controls.h"

namespace padral::pruebas {

namespace {

const QString Generales = QStringLiteral("FrmDatGen"), Lista = QStringLiteral("FrmDecLista"),
              Dialogo = QStringLiteral("FrmImOf");

bool vacio(const QString& valor) {
    return valor.isEmpty() || valor == u'0' || valor == QStringLiteral("0.00");
}

bool esCancelar(const Accion& accion) {
    return accion.control == QStringLiteral("cmdCancelar") ||
           accion.control == QStringLiteral("PicCan");
}

/// The record of a section's screen, empty for other screens.
QString apartadoDe(const QString& formulario) {
    if (formulario == QStringLiteral("frmAnexoII")) return QStringLiteral("A.");
    if (!formulario.mid(3).startsWith(QStringLiteral("Apartado"))) return {};
    return formulario.mid(11, 1) + u'.';
}

QStringList noVacios(const Retrato& retrato) {
    QStringList llenos;
    for (auto i = retrato.begin(); i != retrato.end(); ++i)
        // The effective date is the run's until the screen works it out.
        if (!vacio(i.value()) && !i.key().startsWith(QStringLiteral("PA.")) &&
            i.key() != QStringLiteral("G.FECHAVIGOR"))
            llenos << i.key() + u'=' + i.value();
    return llenos;
}

}  // namespace

ModeloDelPaseo::ModeloDelPaseo(Programa& programa, const QString& fichero)
    : programa_(programa), fichero_(fichero), almacen_(LeerAlmacen(fichero)) {
    QFile f(fichero_);
    if (f.open(QIODevice::ReadOnly)) bytes_ = f.readAll();
    antes_ = mirar();
}

ModeloDelPaseo::Momento ModeloDelPaseo::mirar() const {
    Momento m;
    const auto& d = programa_.declaracion();
    const auto* pantalla = PantallaAbierta(programa_.ventana());
    if (pantalla) m.formulario = pantalla->objectName();
    for (const QWidget* w : QApplication::topLevelWidgets())
        if (w->isVisible() && w->objectName() == Dialogo) m.formulario = Dialogo;
    m.retrato = Retratar(d);
    for (const auto& apartado : Apartados()) m.modificado[apartado] = EstaModificado(d, apartado);
    m.pendientes = programa_.estado().ModificacionesPendientes;
    m.csde = d.csde;
    m.modo = d.Modo;
    m.marcas = MarcasEsperadas(d);
    if (pantalla)
        for (const auto& mando : MandosDe(m.formulario))
            if (const auto* control = pantalla->findChild<QWidget*>(mando.control);
                control && !control->isHidden())
                m.mostrado[mando.control] = LoQueMuestra(control);
    return m;
}

QStringList ModeloDelPaseo::Despues(const Accion& accion, const QString& pendiente, bool hablo) {
    faltas_.clear();
    Momento ahora = mirar();
    ahora.pendiente = pendiente;
    cotejarFichero(accion, ahora);
    cotejarPaso(accion, ahora, hablo);
    anotarSordera(accion, ahora);
    cotejarVentana(ahora);
    if (ahora.formulario != antes_.formulario) ++Visitas[ahora.formulario];
    espera_ = accion.enEspera && pendiente == accion.control ? accion.queda : std::nullopt;
    antes_ = ahora;
    return faltas_;
}

void ModeloDelPaseo::cotejarPaso(const Accion& accion, const Momento& ahora, bool hablo) {
    const bool nueva = antes_.formulario != ahora.formulario;
    const bool desdeFuera =
        antes_.formulario.isEmpty() || antes_.formulario == Lista || antes_.formulario == Dialogo;
    if (nueva && ahora.formulario == Generales && desdeFuera) return cotejarApertura(accion, ahora);
    if (nueva && ahora.formulario.isEmpty() && antes_.formulario == Generales)
        return cotejarCierre(ahora);
    if (desdeFuera || ahora.formulario == Lista || ahora.formulario == Dialogo) return;
    cotejarCambios(accion, ahora);
    if (nueva) cotejarSalida(accion, ahora);
    cotejarEscrito(accion, ahora, hablo);
}

/// What was typed or ticked stands in the record, and what was left with it.
void ModeloDelPaseo::cotejarEscrito(const Accion& accion, const Momento& ahora, bool hablo) {
    if (hablo || sorda_) return;
    const auto cotejar = [&](const QString& control, const std::optional<QString>& debe) {
        const auto* mando = MandoDe(antes_.formulario, control);
        if (!mando || !debe || ahora.retrato.value(mando->propiedad) == *debe) return;
        // The command that left the field may have changed it again.
        const Paso paso{antes_.formulario, accion.control, ahora.formulario};
        const QString valor = ahora.retrato.value(mando->propiedad);
        if (control != accion.control && PuedeCambiar(paso, mando->propiedad, valor)) return;
        falta(QStringLiteral("%1 holds \"%2\" and not \"%3\"")
                  .arg(mando->propiedad, ahora.retrato.value(mando->propiedad), *debe));
    };
    const bool otro = accion.control != antes_.pendiente;
    if (otro && !esCancelar(accion) && ahora.pendiente != antes_.pendiente)
        cotejar(antes_.pendiente, espera_);
    const bool nueva = antes_.formulario != ahora.formulario;
    if (!nueva && !accion.enEspera) cotejar(accion.control, accion.queda);
}

void ModeloDelPaseo::darPorAceptado(const Momento& momento) {
    dejada_.clear();
    for (const auto& apartado : Apartados()) aceptado_[apartado] = Parte(momento.retrato, apartado);
}

void ModeloDelPaseo::cotejarApertura(const Accion& accion, const Momento& ahora) {
    ++Abiertas;
    darPorAceptado(ahora);
    const bool copia =
        ahora.modo == u'A' && accion.control == QStringLiteral("CmdCopiarDeclaracion");
    if (ahora.modo == u'A' && !copia) {
        const auto llenos = noVacios(ahora.retrato);
        if (!llenos.isEmpty())
            falta(QStringLiteral("a new declaration is not blank: ") + llenos.join(u' '));
        return;
    }
    if (!copia && programa_.ventana().HayModificaciones())
        falta(QStringLiteral("changes pending right after opening"));
    const auto filas = FilasEsperadas(ahora.retrato, ahora.marcas);
    const auto participes = ParticipesEsperados(ahora.retrato);
    // A copy does not say of which one.
    const QList<qint64> claves =
        copia ? almacen_.value(QStringLiteral("TDeclaraciones")).keys() : QList<qint64>{ahora.csde};
    QStringList diferencias;
    for (const qint64 clave : claves) {
        diferencias = Diferencias(filas, FilasDe(almacen_, clave)) +
                      Diferencias(participes, ParticipesDe(almacen_, clave));
        if (diferencias.isEmpty()) return;
    }
    falta(QStringLiteral("opened is not what was stored: ") + diferencias.join(u'\n'));
}

void ModeloDelPaseo::cotejarCierre(const Momento& ahora) {
    const auto llenos = noVacios(ahora.retrato);
    if (!llenos.isEmpty()) falta(QStringLiteral("closed, but not blank: ") + llenos.join(u' '));
    if (programa_.ventana().HayModificaciones())
        falta(QStringLiteral("changes pending with nothing open"));
    if (ahora.csde != 0 || !ahora.modo.isEmpty())
        falta(QStringLiteral("closed, but with key or mode"));
}

/// Only what the step is about may change.
void ModeloDelPaseo::cotejarCambios(const Accion& accion, const Momento& ahora) {
    const QString apartado = apartadoDe(antes_.formulario);
    const bool cancela = esCancelar(accion);
    auto propiedades = antes_.retrato.keys() + ahora.retrato.keys();
    propiedades.removeDuplicates();
    for (const auto& propiedad : propiedades) {
        const QString valor = ahora.retrato.value(propiedad);
        if (valor == antes_.retrato.value(propiedad)) continue;
        if (cancela && !apartado.isEmpty() && propiedad.startsWith(apartado)) continue;
        const Paso paso{antes_.formulario, accion.control, ahora.formulario};
        const Paso deAntes{antes_.formulario, antes_.pendiente, ahora.formulario};
        if (PuedeCambiar(paso, propiedad, valor)) continue;
        if (!antes_.pendiente.isEmpty() && PuedeCambiar(deAntes, propiedad, valor)) continue;
        falta(QStringLiteral("%1 was \"%2\" and is \"%3\"")
                  .arg(propiedad, antes_.retrato.value(propiedad), valor));
    }
    if (antes_.formulario != Generales || !accion.control.startsWith(QStringLiteral("chk"))) return;
    // A box that clears a section leaves nothing for Cancel to bring back.
    for (const auto& otro : Apartados()) {
        const auto tiene = Parte(ahora.retrato, otro);
        if (tiene != Parte(antes_.retrato, otro) && std::ranges::all_of(tiene, vacio))
            aceptado_[otro] = tiene;
    }
}

void ModeloDelPaseo::cotejarSalida(const Accion& accion, const Momento& ahora) {
    const QString apartado = apartadoDe(antes_.formulario);
    const bool cancela = esCancelar(accion);
    if (!apartado.isEmpty()) {
        const auto& d = programa_.declaracion();
        const auto tiene = Parte(ahora.retrato, apartado), tenia = Parte(antes_.retrato, apartado);
        const bool cambiado = antes_.modificado.value(apartado) || tiene != tenia;
        if (cancela && antes_.pendiente.isEmpty()) {
            const auto& debe = antes_.modificado.value(apartado) ? aceptado_[apartado] : tenia;
            for (auto i = debe.begin(); i != debe.end(); ++i)
                if (tiene.value(i.key()) != i.value())
                    falta(QStringLiteral("cancelled, %1%2 is \"%3\" and not \"%4\"")
                              .arg(apartado, i.key(), tiene.value(i.key()), i.value()));
        } else if (!cancela && cambiado) {
            if (EstaModificado(d, apartado)) falta(QStringLiteral("accepted, but still modified"));
            if (!EstaLleno(d, apartado)) falta(QStringLiteral("accepted, but not filled"));
            if (!ahora.pendientes) falta(QStringLiteral("accepted, but no changes pending"));
            aceptado_[apartado] = tiene;
        }
    }
    Momento dejada = antes_;
    for (const auto& control : silenciosos(antes_)) dejada.mostrado.remove(control);
    if (cancela) dejada.mostrado.clear();
    dejada_[antes_.formulario] = dejada;
    cotejarRegreso(ahora);
}

void ModeloDelPaseo::anotarSordera(const Accion& accion, const Momento& ahora) {
    const QString codigo = QStringLiteral("txtDescripcionActividad");
    if (ahora.formulario != antes_.formulario) {
        sorda_ = false;
    } else if (accion.control == codigo || antes_.pendiente == codigo) {
        sorda_ = sorda_ || MandoDe(ahora.formulario, codigo) != nullptr;
    } else if (sorda_) {
        // These are written without showing the record again.
        auto antes = Parte(antes_.retrato, QStringLiteral("3."));
        auto tiene = Parte(ahora.retrato, QStringLiteral("3."));
        for (const auto* callada :
             {u"SocPat", u"ActVenMov", u"MedioPref", u"FechaInicio", u"FechaCierre"}) {
            antes.remove(QString::fromUtf16(callada));
            tiene.remove(QString::fromUtf16(callada));
        }
        sorda_ = antes == tiene;
    }
}

/// A screen that comes again shows what it showed when it was left.
void ModeloDelPaseo::cotejarRegreso(const Momento& ahora) {
    const auto dejada = dejada_.value(ahora.formulario);
    for (const auto& mando : MandosDe(ahora.formulario)) {
        if (!dejada.mostrado.contains(mando.control)) continue;
        // A change on the way has been looked at when it happened.
        if (dejada.retrato.value(mando.propiedad) != ahora.retrato.value(mando.propiedad)) continue;
        const QString mostraba = dejada.mostrado.value(mando.control),
                      muestra = ahora.mostrado.value(mando.control);
        const bool igual = mando.forma == Forma::Numero
                               ? muestra.toLongLong() == mostraba.toLongLong()
                               : muestra == mostraba;
        if (!igual)
            falta(QStringLiteral("%1 shows \"%2\" and showed \"%3\"")
                      .arg(mando.control, muestra, mostraba));
    }
}

}  // namespace padral::pruebas
