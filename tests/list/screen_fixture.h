#pragma once
// The declarations list on the screen, over a data file, with recorders around it.

#include <gtest/gtest.h>

#include <QApplication>
#include <QHeaderView>
#include <QSignalSpy>
#include <QTest>
#include <memory>

#include "store/list/frm_dec_lista.h"
#include "support/recorders.h"
#include "support/store_fixture.h"

namespace padral::pruebas {

class PantallaLista : public ::testing::Test {
protected:
    void SetUp() override {
        luis = almacen.Guardar({QStringLiteral("12345678Z"), QStringLiteral("LUIS"),
                                QStringLiteral("R3"), 20040101, QStringLiteral("I")});
        ana = almacen.Guardar({QStringLiteral("A12345674"), QStringLiteral("ANA"),
                               QStringLiteral("R1"), 20020101, QStringLiteral("M"), QString(),
                               QStringLiteral("XX    X ")});
        eva = almacen.Guardar({QStringLiteral("X1234567L"), QStringLiteral("EVA"),
                               QStringLiteral("R2"), 20030101, QString(), QStringLiteral("D")});
    }

    void enEuskera() {
        estado.DesplazamientoIdioma = CatalogoTextos::DesplazamientoEuskera;
        estado.fecha.fecidioma = QStringLiteral("E");
    }

    /// Loads and shows the screen as the main window does.
    void abrir(const QString& entrada) {
        lista.ENTRADA = entrada;
        mostrar();
    }
    void mostrar() {
        estado.mdi.InicializarContadores();
        pantalla =
            std::make_unique<FrmDecLista>(Contexto{estado, pantallas, guardia}, declaracion, lista);
        pantalla->Cargar();
        pantalla->resize(1280, 600);
        pantalla->show();
        pantalla->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(pantalla.get()));
        pantalla->FocoInicial()->setFocus();
        pantallas.Tomar();
    }

    template <class T = QWidget>
    T* control(const char16_t* nombre) const {
        auto* encontrado = pantalla->findChild<T*>(QString::fromUtf16(nombre));
        EXPECT_NE(encontrado, nullptr) << QString::fromUtf16(nombre).toStdString();
        return encontrado;
    }
    QTableView* rejilla() const { return control<QTableView>(u"flxDeclaraciones"); }
    QLineEdit* caja() const { return control<QLineEdit>(u"txtBusqueda"); }
    QString rotulo(const char16_t* nombre) const { return control<QLabel>(nombre)->text(); }
    void pulsar(const char16_t* boton) const {
        QTest::mouseClick(control<QPushButton>(boton), Qt::LeftButton);
    }
    void tecla(Qt::Key codigo, Qt::KeyboardModifiers con = Qt::NoModifier) const {
        QTest::keyClick(QApplication::focusWidget(), codigo, con);
    }
    void escribir(const char16_t* texto) const {
        for (const QChar c : QString::fromUtf16(texto))
            QTest::sendKeyEvent(QTest::Click, QApplication::focusWidget(), Qt::Key_unknown,
                                QString(c), Qt::NoModifier);
    }
    /// An access key: the button clicks a moment later.
    void teclaDeAcceso(const char16_t* boton, Qt::Key codigo) const {
        QSignalSpy clic(control<QPushButton>(boton), &QPushButton::clicked);
        tecla(codigo, Qt::AltModifier);
        EXPECT_TRUE(QTest::qWaitFor([&clic] { return clic.count() == 1; }));
    }
    /// Rows and columns of the grid: row 1 is the first one below the header.
    QString celda(int fila, int columna) const {
        return rejilla()->model()->index(fila - 1, columna).data().toString();
    }
    QStringList columna(int c) const {
        QStringList textos;
        for (int i = 1; i <= rejilla()->model()->rowCount(); ++i) textos << celda(i, c);
        return textos;
    }
    QPoint centroDe(int fila, int c) const {
        return rejilla()->visualRect(rejilla()->model()->index(fila - 1, c)).center();
    }
    void pulsarCelda(int fila, int c) const {
        QTest::mouseClick(rejilla()->viewport(), Qt::LeftButton, {}, centroDe(fila, c));
    }
    void dobleClic(int fila, int c) const {
        pulsarCelda(fila, c);
        QTest::mouseDClick(rejilla()->viewport(), Qt::LeftButton, {}, centroDe(fila, c));
    }
    void pulsarCabecera(int c) const {
        auto* cabecera = rejilla()->horizontalHeader();
        const QPoint punto(cabecera->sectionViewportPosition(c) + 20, cabecera->height() / 2);
        QTest::mouseClick(cabecera->viewport(), Qt::LeftButton, {}, punto);
    }
    int filaMarcada() const {
        const auto filas = rejilla()->selectionModel()->selectedRows();
        return filas.isEmpty() ? 0 : filas.front().row() + 1;
    }
    QString texto(int id) const { return estado.Texto(id); }

    GrabadorAvisos avisos;
    GrabadorPantallas pantallas;
    RelojFijo reloj;
    EstadoCompartido estado{avisos, reloj};
    AlmacenPrueba almacen{estado};
    GuardiaCampos guardia;
    EstadoDeclaracion declaracion;
    cDecLista lista{estado};
    std::unique_ptr<FrmDecLista> pantalla;
    qint32 luis = 0, ana = 0, eva = 0;
};

}  // namespace padral::pruebas
