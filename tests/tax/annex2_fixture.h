#pragma once
// The screen of Annex II over one open declaration, and what its rows are.

#include <QListWidget>

#include "location/screen_driver.h"
#include "sections/tax/screen/frm_anexo2.h"

namespace padral::pruebas {

using A2 = DatosAnexoII;

/// A box by its name on the form: the property that it writes, its value, and the boxes that go
/// out when it is ticked.
struct Casilla2 {
    const char16_t* nombre;
    QString A2::*propiedad;
    const char16_t* valor;
    std::vector<const char16_t*> otras = {};
};
inline void PrintTo(const Casilla2& c, std::ostream* salida) { *salida << s(c.nombre); }

/// In reading order.
inline const std::vector<Casilla2> Casillas2 = {
    {u"chklbl1Si", &A2::TerritorioHistorico, u"S", {u"chklbl1No"}},
    {u"chklbl1No", &A2::TerritorioHistorico, u"N", {u"chklbl1Si"}},
    {u"chkCierra", &A2::ModalidadEstablecimiento, u"A", {u"chkOcasional", u"chkNoCierra"}},
    {u"chkOcasional", &A2::ModalidadEstablecimiento, u"B", {u"chkCierra", u"chkNoCierra"}},
    {u"chkNoCierra", &A2::ModalidadEstablecimiento, u"C", {u"chkCierra", u"chkOcasional"}},
    {u"chklbl2Si", &A2::OtrosEstablecimientos, u"S"},
    {u"chklbl5Si", &A2::Obligado, u"S", {u"chklbl5No"}},
    {u"chklbl5No", &A2::Obligado, u"N", {u"chklbl5Si"}},
    {u"chklbl6Si", &A2::Establecimientos, u"S", {u"chklbl6No"}},
    {u"chklbl6No", &A2::Establecimientos, u"N", {u"chklbl6Si"}},
    {u"chklbl4Si", &A2::Aplicacion, u"S"},
    {u"chkOpcion", &A2::OpcionApl, u"O", {u"chkRevocacion"}},
    {u"chkRevocacion", &A2::OpcionApl, u"R", {u"chkOpcion"}},
};

/// A text field and the property that it shows.
struct Texto2 {
    const char16_t* nombre;
    QString A2::*propiedad;
    const char16_t* siguiente;  ///< where Tab goes from it
};
inline void PrintTo(const Texto2& t, std::ostream* salida) { *salida << s(t.nombre); }

inline constexpr Texto2 Textos2[] = {
    {u"txtDomicilio", &A2::DireccionDom, u"txtNombreMunicipio"},
    {u"txtNombreMunicipio", &A2::PoblacionDom, u"txtNacionalidad"},
    {u"txtNacionalidad", &A2::Nacionalidad, u"txtFormaJuridica"},
    {u"txtFormaJuridica", &A2::FormaJuridica, u"txtNIF"},
    {u"txtNombre", &A2::NombreRepresentante, u"txtNacionalidadRep"},
    {u"txtNacionalidadRep", &A2::NacionalidadRepresentante, u"txtRepDomicilio"},
    {u"txtRepDomicilio", &A2::DomicilioRepresentante, u"numCodigoProvincia"},
    {u"txtNombreMunRepr", &A2::NombreMunicipio, u"chklbl1Si"},
};

class PantallaAnexoII : public ConPantalla {
protected:
    void SetUp() override {
        ConPantalla::SetUp();
        g.AnexoII = q(u"X");
        g.FECHAVIGOR = 20131231;
    }
    void abrir() { ConPantalla::abrir(std::make_unique<frmAnexoII>(contexto(), d)); }
    void abrir(qint32 fechaVigor) {
        g.FECHAVIGOR = fechaVigor;
        abrir();
    }
    /// A record that breaks no rule, accepted as it is.
    void valida() {
        static_cast<A2&>(r) = {};
        r.Aplicacion = q(u"S");
        r.RellenarTablaAuxiliar();
    }
    void conDomicilio() {
        r.DireccionDom = q(u"12 HIGH STREET");
        r.PoblacionDom = q(u"LONDRES");
        r.Nacionalidad = q(u"BRITANICA");
        r.FormaJuridica = q(u"LIMITED");
    }
    void enProvinciaPropia() {
        r.CodigoProvincia = 20;
        r.NombreProvincia = q(u"Kelmaria");
        r.CodigoMunicipio = 1;
        r.NombreMunicipio = q(u"Aldabarri");
    }
    void enOtraProvincia() {
        r.CodigoProvincia = 28;
        r.NombreProvincia = q(u"Madrid");
        r.CodigoMunicipio = 0;
        r.NombreMunicipio = q(u"POBLADO");
    }
    void conRepresentante() {
        r.NIFRepresentante = q(u"12345678Z");
        r.NombreRepresentante = q(u"PERSONA UNA");
        r.NacionalidadRepresentante = q(u"ESPANOLA");
        r.DomicilioRepresentante = q(u"CALLE MAYOR 7");
        enOtraProvincia();
    }
    /// Every property holds something, in a declaration of before 2014.
    void completo() {
        conDomicilio();
        conRepresentante();
        r.TerritorioHistorico = r.OtrosEstablecimientos = r.Obligado = r.Aplicacion = q(u"S");
        r.ModalidadEstablecimiento = q(u"B");
        r.Establecimientos = q(u"N");
        r.OpcionApl = q(u"R");
        r.PORCENTAJE = 35;
        r.RellenarTablaAuxiliar();
    }
    void esperaDireccion(qint32 provincia, const char16_t* nombre, qint32 municipio,
                         const char16_t* nombreMunicipio) {
        EXPECT_EQ(r.CodigoProvincia, provincia);
        EXPECT_EQ(r.NombreProvincia, q(nombre));
        EXPECT_EQ(r.CodigoMunicipio, municipio);
        EXPECT_EQ(r.NombreMunicipio, q(nombreMunicipio));
        EXPECT_EQ(texto(u"numCodigoProvincia"),
                  provincia == 0 ? q(u"00") : QString::number(provincia));
        EXPECT_EQ(texto(u"txtNombreProvincia"), q(nombre));
        EXPECT_EQ(texto(u"numCodigoMunicipio"),
                  municipio == 0 ? QString() : QString::number(municipio));
        EXPECT_EQ(texto(u"txtNombreMunRepr"), q(nombreMunicipio));
    }
    QListWidget* lista(const char16_t* nombre) { return c<QListWidget>(nombre); }
    /// The list is open, has the focus and that row selected.
    void esperaLista(const char16_t* nombre, const QString& fila) {
        EXPECT_TRUE(visible(nombre));
        EXPECT_EQ(foco(), q(nombre));
        ASSERT_NE(lista(nombre)->currentItem(), nullptr);
        EXPECT_EQ(lista(nombre)->currentItem()->text(), fila);
    }
    QString primera(const char16_t* nombre) { return lista(nombre)->item(0)->text(); }
    /// Selects a row by its text and picks it.
    void elegir(const char16_t* nombre, const QString& fila, bool conIntro) {
        auto* l = lista(nombre);
        const auto filas = l->findItems(fila, Qt::MatchExactly);
        ASSERT_EQ(filas.size(), 1) << fila.toStdString();
        l->setCurrentItem(filas.front());
        if (conIntro) return tecla(Qt::Key_Return);
        l->scrollToItem(filas.front());
        const QPoint punto = l->visualItemRect(filas.front()).center();
        QTest::mouseClick(l->viewport(), Qt::LeftButton, {}, punto);
        QTest::mouseDClick(l->viewport(), Qt::LeftButton, {}, punto);
        QCoreApplication::processEvents();
    }

    template <class T = QWidget>
    T* c(const char16_t* nombre) {
        return ConPantalla::c<T>(q(nombre));
    }
    QString texto(const char16_t* nombre) { return ConPantalla::texto(q(nombre)); }
    QString rotulo(const char16_t* nombre) { return c(nombre)->property("text").toString(); }
    bool habilitado(const char16_t* nombre) { return c(nombre)->isEnabled(); }
    bool visible(const char16_t* nombre) { return c(nombre)->isVisible(); }
    bool bloqueado(const char16_t* nombre) { return ConPantalla::bloqueado(q(nombre)); }
    bool marcada(const char16_t* nombre) { return ConPantalla::marcada(q(nombre)); }
    void pulsar(const char16_t* nombre) { ConPantalla::pulsar(q(nombre)); }
    void enfocar(const char16_t* nombre) { ConPantalla::enfocar(q(nombre)); }
    void escribir(const char16_t* nombre, const char16_t* valor) {
        ConPantalla::escribir(q(nombre), q(valor));
    }
    /// Types and leaves with Tab.
    void rellenar(const char16_t* nombre, const char16_t* valor) {
        ConPantalla::rellenar(q(nombre), q(valor));
    }
    bool cambiado() { return std::exchange(r.Modificaciones, false); }
    const A2& datos() const { return r; }
    /// What the auxiliary copy holds.
    A2 auxiliar() const {
        cAnexoII copia = r;
        copia.ObtenerDatosTablaAuxiliar();
        return copia;
    }
    /// Nothing of the record changes by what `hacer` does.
    void sinCambios(const std::function<void()>& hacer) {
        const A2 antes = r;
        hacer();
        EXPECT_TRUE(datos() == antes);
    }
    QStringList salida(const char16_t* destino) {
        return {q(u"Mostrar ") + q(destino), q(u"Descargar ") + pantalla->objectName()};
    }

    cAnexoII& r{d.anexoII};
};

}  // namespace padral::pruebas
