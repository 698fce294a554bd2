#include "walk/walk_walker.h"

#include <QAction>
#include <QApplication>
#include <QTableView>
#include <QTest>

#include "ui/screen.h"
#include "walk/walk_hand.h"
#include "walk/walk_records.h"

namespace padral::pruebas {

namespace {

constexpr int MuchasDeclaraciones = 10;

QWidget* dialogoAbierto() {
    for (QWidget* w : QApplication::topLevelWidgets())
        if (w->isVisible() && w->objectName() == QStringLiteral("FrmImOf")) return w;
    return nullptr;
}

ListaEleccion* listaAbierta(const QWidget* pantalla) {
    for (auto* lista : pantalla->findChildren<ListaEleccion*>())
        if (lista->isVisible()) return lista;
    return nullptr;
}

bool activo(const QWidget* pantalla, const QString& nombre) {
    const auto* boton = pantalla->findChild<QWidget*>(nombre);
    return boton && boton->isVisible() && boton->isEnabled();
}

}  // namespace

QWidget* PantallaAbierta(const MDIPadral& ventana) {
    for (auto* pantalla : ventana.findChildren<Pantalla*>())
        if (pantalla->isVisible()) return pantalla;
    return nullptr;
}

Paseante::Paseante(Programa& programa, Guia& guia, AvisadorDelPaseo& avisador, Azar& azar,
                   QList<qint32> preparadas, std::function<QString(const QString&)> valor)
    : programa_(programa), guia_(guia), avisador_(avisador), azar_(azar), valor_(std::move(valor)) {
    while (!preparadas.isEmpty())
        preparadas_ << preparadas.takeAt(azar_.Hasta(static_cast<int>(preparadas.size())));
}

Accion Paseante::Andar() {
    const int mensajes = avisador_.Mostrados;
    const QString anterior = pendiente_;
    Accion accion = elegirPaso()();
    guia_.Respirar();
    const bool hablo = avisador_.Mostrados != mensajes;
    const auto* foco = qobject_cast<QLineEdit*>(QApplication::focusWidget());
    const QString campo = foco ? foco->objectName() : QString();
    // A field that is refused keeps what was typed, and the focus.
    rechazado_ = hablo && foco && (campo == accion.control || campo == anterior);
    const bool espera = !hablo && accion.enEspera && campo == accion.control;
    pendiente_ = rechazado_ || espera ? campo : QString();
    // A code that is not known opens its list, and the step goes no further.
    const auto* pantalla = PantallaAbierta(programa_.ventana());
    if (pantalla && listaAbierta(pantalla)) accion.queda.reset();
    if (hablo) {
        accion.queda.reset();
        accion.descripcion += QStringLiteral(" -> \"%1\"").arg(avisador_.Ultimo.left(60));
        if (accion.control.startsWith(QStringLiteral("cmd"))) ++rechazos_;
    }
    return accion;
}

Paseante::Hecho Paseante::elegirPaso() {
    if (auto* dialogo = dialogoAbierto()) return elegirEnDialogo(dialogo);
    auto* pantalla = PantallaAbierta(programa_.ventana());
    const QString formulario = pantalla ? pantalla->objectName() : QString();
    if (formulario != formulario_) {
        formulario_ = formulario;
        rechazos_ = 0;
        tareas_.clear();
        if (pantalla) entrar(pantalla);
    }
    if (!pantalla) return elegirEnVentana();
    if (auto* lista = listaAbierta(pantalla)) return elegirEnLista(lista);
    --pasos_;
    return elegirEnPantalla(pantalla);
}

Paseante::Hecho Paseante::elegirEnVentana() {
    const int cuantas = programa_.estado().mdi.NUMDECLA;
    QString orden = QStringLiteral("Abrir");
    if (preparadas_.isEmpty()) {
        if (azar_.PorCiento(35)) orden = QStringLiteral("Nueva");
        if (azar_.PorCiento(cuantas > MuchasDeclaraciones ? 60 : 15))
            orden = QStringLiteral("Borrar");
    }
    if (cuantas == 0) orden = QStringLiteral("Nueva");
    pasos_ = 40 + azar_.Hasta(preparadas_.isEmpty() ? 60 : 30);
    recorrida_ = false;
    prudente_ = !preparadas_.isEmpty() || azar_.PorCiento(50);
    return [this, orden] {
        guia_.Ordenar(orden);
        return Accion{orden, QStringLiteral("command ") + orden, {}};
    };
}

Paseante::Hecho Paseante::elegirEnDialogo(QWidget* dialogo) {
    return [this, dialogo] {
        const bool tecla = azar_.PorCiento(50);
        if (tecla)
            guia_.Tecla(Qt::Key_Escape);
        else
            PulsarEn(dialogo->findChild<QWidget*>(QStringLiteral("btnCancelar")));
        return Accion{QStringLiteral("FrmImOf"), QStringLiteral("close the print dialog"), {}};
    };
}

/// On a blank screen the user mostly writes what lets it be left again.
void Paseante::entrar(QWidget* pantalla) {
    const QString formulario = pantalla->objectName();
    if (!enBlanco(formulario) || azar_.PorCiento(15)) return;
    tareas_ = RecetaDe(formulario, programa_.estado().DesplazamientoIdioma != 0, azar_);
}

bool Paseante::enBlanco(const QString& formulario) const {
    const auto es = [&](const char16_t* nombre) {
        return formulario.startsWith(QString::fromUtf16(nombre));
    };
    const auto& d = programa_.declaracion();
    if (es(u"FrmDatGen")) return d.general.DNI.isEmpty();
    if (es(u"frmDatosParticipe")) return valor_(QStringLiteral("PA.DNI")).isEmpty();
    if (es(u"frmAnexoII")) return !d.anexoII.Lleno;
    const QString cifra = formulario.mid(11, 1) + u'.';
    return Apartados().contains(cifra) && !EstaLleno(d, cifra);
}

Paseante::Hecho Paseante::elegirEnPantalla(QWidget* pantalla) {
    const bool lista = pantalla->objectName() == QStringLiteral("FrmDecLista");
    if (lista && (!preparadas_.isEmpty() || azar_.PorCiento(40))) return abrirFila(pantalla);
    // What was refused is put right, or the user tries to leave it all the same.
    auto* campo = pantalla->findChild<QLineEdit*>(pendiente_);
    // A date of change has too many effects to be left by a command that saves.
    const bool antes = pendiente_ == QStringLiteral("mskFechaModificacion");
    if (campo && (antes || (rechazado_ && azar_.PorCiento(85)))) return escribir(campo, true);
    if (!tareas_.isEmpty() && azar_.PorCiento(92)) return hacerTarea(pantalla);
    const int quedarse = pasos_ <= 0 ? 0 : prudente_ ? 55 : 75;
    if (azar_.PorCiento(quedarse)) return elegirEdicion(pantalla);
    return elegirSalida(pantalla);
}

Paseante::Hecho Paseante::elegirEnLista(ListaEleccion* lista) {
    return [this, lista] {
        const QString nombre = lista->objectName();
        const int como = azar_.Hasta(10);
        if (como == 0) {
            QTest::keyClick(lista, Qt::Key_Escape);
            return Accion{nombre, QStringLiteral("Esc in ") + nombre, {}};
        }
        const int fila = azar_.Hasta(std::min(lista->count(), 25));
        lista->setCurrentRow(fila);
        if (como < 5)
            QTest::keyClick(lista, Qt::Key_Return);
        else
            PulsarFila(lista, lista->model()->index(fila, 0), true);
        return Accion{nombre, QStringLiteral("row %1 of %2").arg(fila).arg(nombre), {}};
    };
}

Paseante::Hecho Paseante::elegirSalida(QWidget* pantalla) {
    const QString formulario = pantalla->objectName();
    if (formulario == QStringLiteral("FrmDatGen")) return elegirSalidaDeGenerales(pantalla);
    QStringList salidas;
    for (const char16_t* nombre :
         {u"cmdInicio", u"cmdAnterior", u"cmdApartadoAnterior", u"cmdVolver", u"cmdCancelar",
          u"cmdSiguiente", u"cmdApartadoSiguiente", u"PicInicio", u"PicCan"})
        if (activo(pantalla, QString::fromUtf16(nombre))) salidas << QString::fromUtf16(nombre);
    const auto siguientes = salidas.filter(QStringLiteral("Siguiente"));
    const bool volver = pasos_ <= 0 || rechazos_ > 1;
    if (!volver && !siguientes.isEmpty() && azar_.PorCiento(prudente_ ? 85 : 60))
        return pulsar(siguientes.first());
    if (rechazos_ > 1 || azar_.PorCiento(15)) {
        if (salidas.contains(QStringLiteral("cmdCancelar")))
            return pulsar(QStringLiteral("cmdCancelar"));
    } else {
        // Otherwise what was typed is not given up.
        salidas.removeAll(QStringLiteral("cmdCancelar"));
        salidas.removeAll(QStringLiteral("PicCan"));
    }
    if (volver && salidas.contains(QStringLiteral("cmdInicio")))
        return pulsar(QStringLiteral("cmdInicio"));
    if (salidas.isEmpty()) return pulsar(QStringLiteral("cmdCancelar"));
    return pulsar(azar_.Uno(salidas));
}

Paseante::Hecho Paseante::elegirSalidaDeGenerales(QWidget* pantalla) {
    if (pasos_ <= 0 || (prudente_ && recorrida_ && azar_.PorCiento(15))) {
        if (rechazos_ > 2) return pulsar(QStringLiteral("cmdCancelar"));
        return pulsar(azar_.PorCiento(85) ? QStringLiteral("cmdAceptar")
                                          : QStringLiteral("cmdImprimir"));
    }
    if (azar_.PorCiento(4) && activo(pantalla, QStringLiteral("cmdAnterior")))
        return pulsar(QStringLiteral("cmdAnterior"));
    if (azar_.PorCiento(2)) return pulsar(QStringLiteral("cmdCancelar"));
    QStringList apartados;
    for (const auto* nombre : {u"cmdApartado2", u"cmdApartado3", u"cmdApartado4", u"cmdApartado5",
                               u"cmdApartado6", u"cmdApartado7", u"cmdAnexo", u"cmdAnexoII"})
        if (activo(pantalla, QString::fromUtf16(nombre))) apartados << QString::fromUtf16(nombre);
    if (apartados.isEmpty()) return pulsar(QStringLiteral("cmdAceptar"));
    recorrida_ = true;
    // From the first one the chain leads through all the others.
    return pulsar(azar_.PorCiento(50) ? apartados.first() : azar_.Uno(apartados));
}

Paseante::Hecho Paseante::abrirFila(QWidget* pantalla) {
    auto* tabla = pantalla->findChild<QTableView*>(QStringLiteral("flxDeclaraciones"));
    const auto* modelo = tabla->model();
    int fila = modelo->rowCount() > 0 ? azar_.Hasta(modelo->rowCount()) : -1;
    for (int i = 0; i < modelo->rowCount() && !preparadas_.isEmpty(); ++i)
        if (modelo->index(i, 0).data().toInt() == preparadas_.first()) fila = i;
    const bool ver = activo(pantalla, QStringLiteral("cmdVerDeclaracion"));
    if (fila < 0 || !ver) return elegirEdicion(pantalla);
    if (!preparadas_.isEmpty()) preparadas_.removeFirst();
    const bool doble = azar_.PorCiento(30);
    return [=] {
        PulsarFila(tabla, modelo->index(fila, 1), doble);
        if (!doble) PulsarEn(pantalla->findChild<QWidget*>(QStringLiteral("cmdVerDeclaracion")));
        return Accion{QStringLiteral("cmdVerDeclaracion"),
                      QStringLiteral("open the declaration of row %1").arg(fila),
                      {}};
    };
}

}  // namespace padral::pruebas
