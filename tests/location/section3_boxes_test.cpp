// Boxes and options of section 3, and the fields that channels open and close.

#include "location/section3_fixture.h"

namespace padral::pruebas {
namespace {

using D3 = DatosApartado3;

struct Pareja {
    const char16_t *una, *otra, *valorUna, *valorOtra;
    Letra D3::*miembroUna;
    Letra D3::*miembroOtra;
};
void PrintTo(const Pareja& p, std::ostream* salida) { *salida << s(p.una); }

const Pareja Parejas[] = {
    {u"chkCastellano", u"chkEuskera", u"C", u"E", &D3::IdiomaPref, &D3::IdiomaPref},
    {u"chkPostal", u"chkElectronico", u"P", u"E", &D3::MedioPref, &D3::MedioPref},
    {u"chkCorreoAlta", u"chkCorreoBaja", u"A", u"B", &D3::Correo, &D3::Correo},
    {u"chkFaxAlta", u"chkFaxBaja", u"A", u"B", &D3::Fax, &D3::Fax},
    {u"chkTelMovilAlta", u"chkTelMovilBaja", u"A", u"B", &D3::Movil, &D3::Movil},
    {u"chkTelFijoAlta", u"chkTelFijoBaja", u"A", u"B", &D3::Fijo, &D3::Fijo},
    {u"chkConsentimiento", u"chkRevocacion", u"S", u"S", &D3::Consentimiento, &D3::Revocacion},
};

class Parejas3 : public PantallaApartado3, public ::testing::WithParamInterface<Pareja> {
protected:
    void espera(const QString& una, const QString& otra) {
        const auto& p = GetParam();
        const bool comun = p.miembroUna == p.miembroOtra;
        EXPECT_EQ((r.*p.miembroUna).recortado(), comun ? una + otra : una);
        EXPECT_EQ((r.*p.miembroOtra).recortado(), comun ? una + otra : otra);
        EXPECT_EQ(marcada(p.una), !una.isEmpty());
        EXPECT_EQ(marcada(p.otra), !otra.isEmpty());
        EXPECT_TRUE(std::exchange(r.Modificaciones, false));
    }
};

TEST_P(Parejas3, UnaQuitaLaOtraYLasDosPuedenFaltar) {
    const QString una = q(GetParam().valorUna), otra = q(GetParam().valorOtra);
    abrirValida();
    pulsar(GetParam().una);
    espera(una, {});
    pulsar(GetParam().otra);
    espera({}, otra);
    pulsar(GetParam().una);
    espera(una, {});
    pulsar(GetParam().una);
    espera({}, {});
    pulsar(GetParam().otra);
    espera({}, otra);
    pulsar(GetParam().otra);
    espera({}, {});
}

TEST_P(Parejas3, SeMuestraLoGuardado) {
    const auto& p = GetParam();
    valida();
    for (const bool primera : {true, false}) {
        r.*p.miembroUna = r.*p.miembroOtra = Letra();
        if (primera)
            r.*p.miembroUna = q(p.valorUna);
        else
            r.*p.miembroOtra = q(p.valorOtra);
        abrir();
        EXPECT_EQ(marcada(p.una), primera);
        EXPECT_EQ(marcada(p.otra), !primera);
    }
}

TEST_P(Parejas3, ConElTeclado) {
    abrirValida();
    enfocar(GetParam().una);
    tecla(Qt::Key_Space);
    espera(q(GetParam().valorUna), {});
}
INSTANTIATE_TEST_SUITE_P(Filas, Parejas3, ::testing::ValuesIn(Parejas));

TEST_F(PantallaApartado3, ElConsentimientoMandaSobreLaRevocacion) {
    r.Consentimiento = r.Revocacion = q(u"S");
    abrir();
    EXPECT_TRUE(marcada(u"chkConsentimiento"));
    EXPECT_FALSE(marcada(u"chkRevocacion"));
}

TEST_F(PantallaApartado3, MarcasSueltas) {
    const std::pair<const char16_t*, QString D3::*> marcas[] = {{u"chkSocPat", &D3::SocPat},
                                                                {u"chkActVenMov", &D3::ActVenMov}};
    abrirValida();
    for (const auto& [nombre, miembro] : marcas) {
        r.Modificaciones = false;
        pulsar(nombre);
        EXPECT_EQ(r.*miembro, q(u"X"));
        EXPECT_TRUE(std::exchange(r.Modificaciones, false));
        pulsar(nombre);
        EXPECT_EQ(r.*miembro, QString());
        EXPECT_TRUE(r.Modificaciones);
    }
}

TEST_F(PantallaApartado3, MostrarElRegistroNoQuitaLasMarcasSueltas) {
    r.SocPat = r.ActVenMov = q(u"X");
    abrirValida();
    r.SocPat = r.ActVenMov = QString();
    static_cast<FrmApartado3*>(pantalla.get())->PresentarDatos();
    EXPECT_TRUE(marcada(u"chkSocPat"));
    EXPECT_TRUE(marcada(u"chkActVenMov"));
    EXPECT_EQ(r.SocPat + r.ActVenMov, QString());
}

TEST_F(PantallaApartado3, IntroEnUnaCasillaSigueComoElTabulador) {
    r.Correo = r.Fax = r.Movil = r.Fijo = q(u"A");
    abrirValida();
    const auto casillas = pantalla->findChildren<QCheckBox*>();
    ASSERT_EQ(casillas.size(), 16);
    for (const auto* casilla : casillas) {
        const QString nombre = casilla->objectName();
        SCOPED_TRACE(nombre.toStdString());
        ConPantalla::enfocar(nombre);
        tecla(Qt::Key_Tab);
        const QString siguiente = foco();
        ASSERT_NE(siguiente, nombre);
        for (const auto intro : {Qt::Key_Return, Qt::Key_Enter}) {
            ConPantalla::enfocar(nombre);
            sinCambios([&] { tecla(intro); });
            EXPECT_EQ(foco(), siguiente);
        }
    }
}

TEST_F(PantallaApartado3, LaLeyendaPulsaSuCasilla) {
    abrirValida();
    for (const auto* nombre : {u"lblSocPat", u"lblActRevMov", u"lblConsentimiento", u"lblNo"})
        pulsar(nombre);
    EXPECT_EQ(r.SocPat, q(u"X"));
    EXPECT_EQ(r.ActVenMov, q(u"X"));
    EXPECT_EQ(r.Consentimiento.recortado(), q(u"S"));
    EXPECT_EQ(r.ResidenteKelmaria.recortado(), q(u"N"));
}

// ------------------------------------------------------------------------------- channels

struct CanalNumero {
    const char16_t *alta, *baja, *campo;
    Letra D3::*marca;
    qint32 D3::*numero;
};
const CanalNumero Canales[] = {
    {u"chkFaxAlta", u"chkFaxBaja", u"numFax", &D3::Fax, &D3::numFax},
    {u"chkTelMovilAlta", u"chkTelMovilBaja", u"numMovil", &D3::Movil, &D3::numMovil},
    {u"chkTelFijoAlta", u"chkTelFijoBaja", u"numFijo", &D3::Fijo, &D3::numFijo}};

TEST_F(PantallaApartado3, AltaYBajaAbrenElNumeroYSinMarcaSePierde) {
    for (const auto& canal : Canales) {
        SCOPED_TRACE(s(canal.campo));
        abrirValida();
        EXPECT_FALSE(habilitado(canal.campo));
        EXPECT_EQ(fondo(q(canal.campo)), 0xFFE0E0E0);
        pulsar(canal.alta);
        EXPECT_TRUE(habilitado(canal.campo));
        EXPECT_EQ(fondo(q(canal.campo)), QApplication::palette().color(QPalette::Base).rgb());
        rellenar(canal.campo, u"943111222");
        pulsar(canal.baja);
        EXPECT_EQ(r.*canal.numero, 943111222) << "the number to remove stays";
        EXPECT_EQ(texto(canal.campo), q(u"943111222"));
        pulsar(canal.baja);
        EXPECT_EQ(r.*canal.numero, 0);
        EXPECT_EQ(texto(canal.campo), QString());
        EXPECT_FALSE(habilitado(canal.campo));
    }
}

TEST_F(PantallaApartado3, ElCorreoSoloTieneDireccionDeAlta) {
    abrirValida();
    EXPECT_FALSE(habilitado(u"txtDirCorreo"));
    pulsar(u"chkCorreoAlta");
    EXPECT_TRUE(habilitado(u"txtDirCorreo"));
    rellenar(u"txtDirCorreo", u"a@b.c");
    EXPECT_EQ(r.DirCorreo, q(u"A@B.C"));
    pulsar(u"chkCorreoBaja");
    EXPECT_EQ(r.DirCorreo, QString());
    EXPECT_EQ(texto(u"txtDirCorreo"), QString());
    EXPECT_FALSE(habilitado(u"txtDirCorreo"));
    EXPECT_EQ(fondo(q(u"txtDirCorreo")), 0xFFE0E0E0);
}

TEST_F(PantallaApartado3, AbrirLimpiaLosCanalesSinMarca) {
    valida();
    r.DirCorreo = q(u"A@B.C");
    r.numFax = r.numMovil = r.numFijo = 943111222;
    abrir();
    EXPECT_EQ(r.DirCorreo, QString());
    EXPECT_EQ(r.numFax + r.numMovil + r.numFijo, 0);
    EXPECT_FALSE(r.Modificaciones);
    r.Correo = r.Fax = q(u"B");
    r.DirCorreo = q(u"A@B.C");
    r.numFax = 943111222;
    abrir();
    EXPECT_EQ(r.DirCorreo, QString());
    EXPECT_EQ(r.numFax, 943111222);
}

}  // namespace
}  // namespace padral::pruebas
