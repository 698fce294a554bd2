#pragma once
// The screen of section 2 over one open declaration, and what the tests know of its domiciles.

#include <QListWidget>

#include "location/screen_driver.h"
#include "sections/location/screen/frm_apartado2.h"

namespace padral::pruebas {

/// A domicile by its names on the form.
struct DomicilioEsperado {
    const char16_t* sufijo;   ///< of its controls
    const char16_t* inicial;  ///< argument that empties it
    BloqueDireccion DatosApartado2::*bloque;
    const char16_t* postal;  ///< control of the postal code
    const char16_t* marca;   ///< same-as-fiscal box; nullptr in the fiscal domicile
    QString DatosApartado2::*elMismo;
};
inline void PrintTo(const DomicilioEsperado& d, std::ostream* salida) { *salida << s(d.sufijo); }

/// In the order of the screen.
inline const DomicilioEsperado DomiciliosEsperados[] = {
    {u"Fis", u"FIS", &DatosApartado2::Fis, u"numCodFis", nullptr, nullptr},
    {u"Soc", u"SOC", &DatosApartado2::Soc, u"numCodSoc", u"chkDSocElMismo",
     &DatosApartado2::ElMismoSoc},
    {u"Act", u"ACT", &DatosApartado2::Act, u"numCodact", u"chkDActElMismo",
     &DatosApartado2::ElMismoAct},
    {u"Not", u"NOT", &DatosApartado2::Not, u"numCodNot", u"chkDNotElMismo",
     &DatosApartado2::ElMismoNot},
};

/// Domiciles that break no rule, in the territory's own province and in another one.
inline BloqueDireccion enProvinciaPropia() {
    BloqueDireccion b;
    b.SiglasDomicilio = q(u"CL");
    b.DescripcionSiglas = q(u"Calle");
    b.NombreDomicilio = q(u"MAYOR");
    b.CodigoProvincia = 20;
    b.NombreProvincia = q(u"Kelmaria");
    b.CodigoPostal = 20001;
    b.CodigoMunicipio = 1;
    b.NombreMunicipio = q(u"Aldabarri");
    return b;
}
inline BloqueDireccion enOtraProvincia() {
    BloqueDireccion b = enProvinciaPropia();
    b.CodigoProvincia = 28;
    b.NombreProvincia = q(u"Madrid");
    b.CodigoPostal = 28001;
    b.CodigoMunicipio = 0;
    b.NombreMunicipio = q(u"POBLADO");
    return b;
}
/// Every field holds something.
inline BloqueDireccion completa() {
    BloqueDireccion b = enOtraProvincia();
    b.Numero = 7;
    b.Letra = q(u"B");
    b.Escalera = q(u"1");
    b.Piso = q(u"2");
    b.Mano = q(u"IZ");
    b.Telefono = 943000000;
    return b;
}

class PantallaApartado2 : public ConPantalla {
protected:
    void abrir() { ConPantalla::abrir(std::make_unique<FrmApartado2>(contexto(), d)); }
    /// Opens the record as it was accepted.
    void abrirAceptado() {
        r.RellenarTablaAuxiliar();
        abrir();
    }
    /// What an accepted declaration looks like when the screen opens.
    const DatosApartado2& datos() const { return r; }

    QString nombre(const char16_t* control, const DomicilioEsperado& domicilio) const {
        if (q(control) == u"numCod") return q(domicilio.postal);
        return q(control) + q(domicilio.sufijo);
    }
    QListWidget* lista(const QString& nombre) { return c<QListWidget>(nombre); }
    /// The list is open, has the focus and that row selected.
    void esperaLista(const QString& nombre, const QString& fila) {
        EXPECT_TRUE(visible(nombre));
        EXPECT_EQ(foco(), nombre);
        ASSERT_NE(lista(nombre)->currentItem(), nullptr);
        EXPECT_EQ(lista(nombre)->currentItem()->text(), fila);
    }
    /// Selects a row by its text and picks it.
    void elegir(const QString& nombre, const QString& texto, bool conIntro) {
        auto* l = lista(nombre);
        const auto filas = l->findItems(texto, Qt::MatchExactly);
        ASSERT_EQ(filas.size(), 1) << texto.toStdString();
        l->setCurrentItem(filas.front());
        if (conIntro) return tecla(Qt::Key_Return);
        l->scrollToItem(filas.front());
        const QPoint punto = l->visualItemRect(filas.front()).center();
        QTest::mouseClick(l->viewport(), Qt::LeftButton, {}, punto);
        QTest::mouseDClick(l->viewport(), Qt::LeftButton, {}, punto);
        QCoreApplication::processEvents();
    }
    /// Nothing of the record changes by what `hacer` does.
    void sinCambios(const std::function<void()>& hacer) {
        const DatosApartado2 antes = r;
        hacer();
        EXPECT_TRUE(datos() == antes);
    }

    cApartado2& r{d.apartado2};
};

/// The same for each of the four domiciles.
class EnCadaDomicilio : public PantallaApartado2,
                        public ::testing::WithParamInterface<DomicilioEsperado> {
protected:
    BloqueDireccion& b() { return r.*GetParam().bloque; }
    QString n(const char16_t* control) const { return nombre(control, GetParam()); }
    bool fiscal() const { return GetParam().marca == nullptr; }
};

inline auto LosCuatro() { return ::testing::ValuesIn(DomiciliosEsperados); }
/// Those that can be marked as equal to the fiscal one.
inline auto LosMarcables() {
    return ::testing::Values(DomiciliosEsperados[1], DomiciliosEsperados[2],
                             DomiciliosEsperados[3]);
}

}  // namespace padral::pruebas
