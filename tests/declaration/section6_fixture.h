#pragma once
// The screen of section 6 over one open declaration.

#include <QAbstractItemView>
#include <QComboBox>

#include "declaration/screen/frm_apartado6.h"
#include "location/screen_driver.h"

namespace padral::pruebas {

class PantallaApartado6 : public ConPantalla {
protected:
    void SetUp() override {
        ConPantalla::SetUp();
        g.Causa1 = q(u"C");
        g.Apartado6 = g.Apartado7 = q(u"X");
    }

    void abrir() { ConPantalla::abrir(std::make_unique<frmApartado6>(contexto(), d)); }
    /// A record that breaks no rule, accepted as it is.
    void valida() { poner(20150331, 20, u"CESE SIN DISOLUCION"); }
    void poner(qint32 cese, qint16 causa, const char16_t* descripcion, qint32 inscripcion = 0) {
        r.LIMPIARDATOS();
        r.FECHACESE = cese;
        r.CAUSA = causa;
        r.DESCRIPCIONCAUSA = q(descripcion);
        r.FechaInscripcion = inscripcion;
        r.GuardarDatosAuxiliares();
    }
    void abrirValida() {
        valida();
        abrir();
    }

    template <class T = QWidget>
    T* c(const char16_t* nombre) {
        return ConPantalla::c<T>(q(nombre));
    }
    QString texto(const char16_t* nombre) { return ConPantalla::texto(q(nombre)); }
    QString fecha(const char16_t* nombre) { return c<QLineEdit>(nombre)->displayText(); }
    QString rotulo(const char16_t* nombre) { return c(nombre)->property("text").toString(); }
    bool habilitado(const char16_t* nombre) { return c(nombre)->isEnabled(); }
    bool visible(const char16_t* nombre) { return c(nombre)->isVisible(); }
    void pulsar(const char16_t* nombre) { ConPantalla::pulsar(q(nombre)); }
    void enfocar(const char16_t* nombre) { ConPantalla::enfocar(q(nombre)); }
    void escribir(const char16_t* nombre, const char16_t* valor) {
        ConPantalla::escribir(q(nombre), q(valor));
    }
    /// Types and leaves with Tab.
    void rellenar(const char16_t* nombre, const char16_t* valor) {
        ConPantalla::rellenar(q(nombre), q(valor));
    }
    int fila() { return c<QComboBox>(u"cmbDescripcion")->currentIndex(); }
    QString elegida() { return c<QComboBox>(u"cmbDescripcion")->currentText(); }
    QStringList filas() {
        QStringList todas;
        const auto* combo = c<QComboBox>(u"cmbDescripcion");
        for (int i = 0; i < combo->count(); ++i) todas << combo->itemText(i);
        return todas;
    }
    /// Opens the list and picks a row.
    void elegir(int i) {
        auto* combo = c<QComboBox>(u"cmbDescripcion");
        ASSERT_LT(i, combo->count());
        enfocar(u"cmbDescripcion");
        combo->showPopup();
        combo->view()->setCurrentIndex(combo->model()->index(i, 0));
        QTest::keyClick(combo->view(), Qt::Key_Return);
        // The list was a window of its own.
        pantalla->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(pantalla.get()));
    }
    void esperaCausa(qint16 causa, const char16_t* descripcion) {
        EXPECT_EQ(r.CAUSA, causa);
        EXPECT_EQ(r.DESCRIPCIONCAUSA.recortado(), q(descripcion));
        EXPECT_EQ(texto(u"txtCausa"), QString::number(causa));
    }
    bool cambiado() { return std::exchange(r.MODIFAPARTADO6, false); }
    const DatosApartado6& datos() const { return r; }
    /// Nothing of the record changes by what `hacer` does.
    void sinCambios(const std::function<void()>& hacer) {
        const DatosApartado6 antes = r;
        hacer();
        EXPECT_TRUE(datos() == antes);
    }
    QStringList salida(const char16_t* destino) {
        return {q(u"Mostrar ") + q(destino), q(u"Descargar frmApartado6")};
    }

    cApartado6& r{d.apartado6};
};

}  // namespace padral::pruebas
