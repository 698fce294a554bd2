#pragma once
// The participants list in a window of its own, over one open declaration.

#include <QHeaderView>
#include <QPushButton>
#include <QTableView>

#include "location/screen_driver.h"
#include "participants/screen/frm_lista_participes.h"

namespace padral::pruebas {

/// A participant as the list knows it.
struct Miembro {
    const char16_t *dni, *nombre;
    float porcentaje = 10;
    const char16_t *via = u"", *municipio = u"";
    qint32 cspa = 0;
    const char16_t* modo = u"A";
};

inline constexpr Miembro Eva{u"X1234567L", u"EVA LASA", 33.33F, u"Grande", u"Oreta", 7, u"C"};
inline constexpr Miembro Luis{u"12345678Z", u"LUIS ABAD", 50, u"Nueva", u"Azpil", 5, u"C"};
inline constexpr Miembro Ana{u"A12345674", u"ANA ZUBI", 16.67F, u"Ñandu", u"Oreta"};

class ListaParticipes : public ConPantalla {
protected:
    std::shared_ptr<cParticipes> poner(const Miembro& m) {
        auto p = ponerParticipe(m.dni, m.modo, m.cspa);
        p->NOMBRE = q(m.nombre);
        p->NombreVia = q(m.via);
        p->NombMun = q(m.municipio);
        p->PorcenPart = m.porcentaje;
        return p;
    }
    /// The three above, in that order.
    void tres() {
        g.AnexoI = q(u"X");
        eva = poner(Eva);
        luis = poner(Luis);
        ana = poner(Ana);
    }
    void poner(int cuantos) {
        for (int i = 0; i < cuantos; ++i) {
            auto p = ponerParticipe(u"", u"C", 1000 + i);
            p->DNI = QStringLiteral("%1T").arg(i, 8, 10, QLatin1Char('0'));
            p->NOMBRE = QStringLiteral("SOCIO %1").arg(i);
            p->PorcenPart = 1;
        }
    }
    void abrir() { ConPantalla::abrir(std::make_unique<frmListaParticipes>(contexto(), d)); }

    template <class T = QWidget>
    T* c(const char16_t* nombre) {
        return ConPantalla::c<T>(q(nombre));
    }
    QTableView* rejilla() { return c<QTableView>(u"flxParticipes"); }
    QLineEdit* caja() { return c<QLineEdit>(u"txtBusqueda"); }
    QString rotulo(const char16_t* nombre) { return c<QLabel>(nombre)->text(); }
    QString boton(const char16_t* nombre) { return c<QPushButton>(nombre)->text(); }
    bool habilitado(const char16_t* nombre) { return c(nombre)->isEnabled(); }
    bool visible(const char16_t* nombre) { return c(nombre)->isVisible(); }
    void pulsar(const char16_t* nombre) { ConPantalla::pulsar(q(nombre)); }
    void enfocar(const char16_t* nombre) { ConPantalla::enfocar(q(nombre)); }
    void teclear(const char16_t* texto) {
        for (const QChar letra : q(texto))
            QTest::sendKeyEvent(QTest::Click, QApplication::focusWidget(), Qt::Key_unknown,
                                QString(letra), Qt::NoModifier);
    }

    /// Row 1 of the grid is the first one below the header.
    QString celda(int fila, int columna) {
        return rejilla()->model()->index(fila - 1, columna).data().toString();
    }
    /// A column of the rows that hold a participant.
    QStringList columna(int cual) {
        QStringList textos;
        for (int fila = 1; fila <= rejilla()->model()->rowCount(); ++fila)
            if (!celda(fila, 1).isEmpty()) textos << celda(fila, cual);
        return textos;
    }
    QString cabecera(int columna) {
        return rejilla()->model()->headerData(columna, Qt::Horizontal).toString();
    }
    QPoint centroDe(int fila, int columna) {
        return rejilla()->visualRect(rejilla()->model()->index(fila - 1, columna)).center();
    }
    void pulsarCelda(int fila, int columna) {
        QTest::mouseClick(rejilla()->viewport(), Qt::LeftButton, {}, centroDe(fila, columna));
    }
    void dobleClic(int fila, int columna) {
        pulsarCelda(fila, columna);
        QTest::mouseDClick(rejilla()->viewport(), Qt::LeftButton, {}, centroDe(fila, columna));
    }
    void pulsarCabecera(int columna) {
        auto* cabecera = rejilla()->horizontalHeader();
        const QPoint punto(cabecera->sectionViewportPosition(columna) + 20, cabecera->height() / 2);
        QTest::mouseClick(cabecera->viewport(), Qt::LeftButton, {}, punto);
    }
    /// From 1; 0 when no row has the mark.
    int filaMarcada() {
        const auto filas = rejilla()->selectionModel()->selectedRows();
        return filas.isEmpty() ? 0 : filas.front().row() + 1;
    }
    /// A search for one criterion, up to its result.
    void buscar(int columna, const char16_t* texto) {
        pulsar(u"cmdBuscar");
        pulsarCabecera(columna);
        teclear(texto);
        pulsar(u"cmdBuscar");
    }
    void esperaPreguntaDeEliminar(Respuesta respuesta) {
        avisos.Espera({q(u"¿Realmente quiere borrar el partícipe seleccionado?"),
                       q(u"Confirme eliminación"), Icono::Exclamacion, Botones::SiNo},
                      respuesta);
    }
    /// Takes a row, deletes it and answers yes.
    void eliminar(int fila) {
        pulsarCelda(fila, 1);
        esperaPreguntaDeEliminar(Respuesta::Si);
        pulsar(u"CmdEliminar");
        avisos.Verificar();
    }
    QStringList salida(const char16_t* destino) {
        return {q(u"Mostrar ") + q(destino), q(u"Descargar frmListaParticipes")};
    }
    /// Identifiers of the collection, deleted ones with their mark.
    QStringList coleccion() {
        QStringList todos;
        for (const auto& p : d.participantes.colParticipes)
            todos << p->DNI.recortado() + (p->Modo == q(u"E") ? q(u" E") : QString());
        return todos;
    }

    cParLista& l{d.parLista};
    std::shared_ptr<cParticipes> eva, luis, ana;
};

}  // namespace padral::pruebas
