#pragma once
// The screen of section 3 over one open declaration, with a catalogue of a few rows.

#include <QAbstractItemView>
#include <QComboBox>

#include "location/screen_driver.h"
#include "sections/location/screen/frm_apartado3.h"

namespace padral::pruebas {

class PantallaApartado3 : public ConPantalla {
protected:
    void SetUp() override {
        ConPantalla::SetUp();
        store::CreateCatalogueFile(estado.RutaBDLectura, [](SQLite::Database& db) {
            db.exec(
                "INSERT INTO TEpigrafes_2000 (EPICODEPI, EPIDEPCAS, EPIDEPEUS) VALUES"
                " ('1.3333', 'ZAPATERIA', 'OSKI DENDA'), ('9999999', 'SIN ACTIVIDAD',"
                " 'JARDUERARIK GABE'), ('1.2222', 'LIBRERIA', 'LIBURU DENDA'),"
                " ('2.731', 'ABOGADOS', 'ABOKATUAK'), ('11111', 'ALFARERIA', 'BUZTINGINTZA')");
            db.exec(
                "INSERT INTO TFormasJuridicas"
                " (CODFORMA, LETDNI, DESCRIFORMACAS, DESCRIFORMAEUS) VALUES"
                " (6, 'B', 'SOCIEDAD LIMITADA - B', 'SOZIETATE MUGATUA - B'),"
                " (1, 'A', 'SOCIEDAD ANONIMA - A', 'SOZIETATE ANONIMOA - A'),"
                " (90, '', 'OTROS', 'BESTELAKOAK'),"
                " (54, 'W', 'ESTABLECIMIENTO - W', 'ESTABLEZIMENDUA - W')");
        });
    }

    void abrir(Edicion edicion = Edicion::Desde2015) {
        ConPantalla::abrir(std::make_unique<FrmApartado3>(contexto(), d, edicion));
    }
    /// Opens a record that breaks no rule, last accepted as it is, in a declaration that goes on.
    void abrirValida(Edicion edicion = Edicion::Desde2015) {
        valida();
        r.RellenarTablaAuxiliar();
        abrir(edicion);
    }
    void valida() {
        g.Apartado3 = g.Apartado4 = q(u"X");
        r.ResidenteKelmaria = q(u"S");
        r.ActivEcon = q(u"1.2222");
        r.ListaEpigrafe = q(u"LIBRERIA");
    }
    void sinEpigrafe(const char16_t* descripcion) {
        r.ActivEcon = q(u"9999999");
        r.ListaEpigrafe = q(descripcion);
    }
    void otraForma(const char16_t* descripcion) {
        r.CodigoFormaJuridica = 90;
        r.DescripcionFormaJuridica = q(descripcion);
    }

    template <class T = QWidget>
    T* c(const char16_t* nombre) {
        return ConPantalla::c<T>(q(nombre));
    }
    QString texto(const char16_t* nombre) { return ConPantalla::texto(q(nombre)); }
    QString fecha(const char16_t* nombre) { return c<QLineEdit>(nombre)->displayText(); }
    bool habilitado(const char16_t* nombre) { return c(nombre)->isEnabled(); }
    bool visible(const char16_t* nombre) { return c(nombre)->isVisible(); }
    bool marcada(const char16_t* nombre) { return c<QAbstractButton>(nombre)->isChecked(); }
    void pulsar(const char16_t* nombre) { ConPantalla::pulsar(q(nombre)); }
    void enfocar(const char16_t* nombre) { ConPantalla::enfocar(q(nombre)); }
    void escribir(const char16_t* nombre, const QString& valor) {
        ConPantalla::escribir(q(nombre), valor);
    }
    /// Types and leaves with Tab.
    void rellenar(const char16_t* nombre, const char16_t* valor) {
        ConPantalla::rellenar(q(nombre), q(valor));
    }
    QString elegido(const char16_t* nombre) { return c<QComboBox>(nombre)->currentText(); }
    QStringList filas(const char16_t* nombre) {
        QStringList todas;
        const auto* combo = c<QComboBox>(nombre);
        for (int i = 0; i < combo->count(); ++i) todas << combo->itemText(i);
        return todas;
    }
    /// Opens a list and picks a row.
    void elegir(const char16_t* nombre, const char16_t* fila) {
        auto* combo = c<QComboBox>(nombre);
        const int i = combo->findText(q(fila));
        ASSERT_GE(i, 0) << s(fila);
        enfocar(nombre);
        combo->showPopup();
        combo->view()->setCurrentIndex(combo->model()->index(i, 0));
        QTest::keyClick(combo->view(), Qt::Key_Return);
        // The list was a window of its own.
        pantalla->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(pantalla.get()));
    }
    const DatosApartado3& datos() const { return r; }
    /// Nothing of the record changes by what `hacer` does.
    void sinCambios(const std::function<void()>& hacer) {
        const DatosApartado3 antes = r;
        hacer();
        EXPECT_TRUE(datos() == antes);
    }
    QStringList salida(const char16_t* destino) {
        return {q(u"Mostrar ") + q(destino), q(u"Descargar ") + pantalla->objectName()};
    }

    cApartado3& r{d.apartado3};
};

}  // namespace padral::pruebas
