// The rules of section 4.

#include "sections/tax/section4_rules.h"

#include "sections/tax_changes.h"

namespace padral::pruebas {
namespace {

const AvisoEsperado Largo{69, 68, u"", u"txtNIF"};
const AvisoEsperado Letra71{71, 68};
const AvisoEsperado Servidor{70, 68};
const AvisoEsperado NifMalo{78, 75};
const AvisoEsperado SinNombre{80, 75, u"", u"txtNombre"};
const AvisoEsperado SinDatos{76, 75};
const AvisoEsperado Caja{871, 75, u"Ap4- "};

struct Reglas4 : testing::Test {
    bool valido = true;
    std::vector<QString> preguntados;
    ServidorNif servidor = [this](const QString& nif) {
        preguntados.push_back(nif);
        return valido;
    };
};

TEST_F(Reglas4, NifPorLargoYLetra) {
    const struct {
        const char16_t* nif;
        std::vector<AvisoEsperado> avisos;
    } casos[] = {
        {u"E12345678", {}},
        {u"G12345678", {}},
        {u"H12345678", {}},
        {u"J12345678", {}},
        {u"", {Largo}},
        {u"E1234567", {Largo}},
        {u"E123456789", {Largo}},
        {u"A1234567", {Largo}},
        {u"A12345678", {Letra71}},
        {u"12345678Z", {Letra71}},
        {u"X1234567L", {Letra71}},
        {u"e12345678", {Letra71}},
        {u"__1234567", {Letra71}},
        {u" E1234567", {Letra71}},
        {u"U12345678", {Letra71}},
        {u"F12345678", {Letra71}},
        {u"Ñ12345678", {Letra71}},
    };
    for (const auto& caso : casos) {
        SCOPED_TRACE(s(caso.nif));
        preguntados.clear();
        comprobarAvisos(NIFValido(q(caso.nif), servidor), caso.avisos);
        EXPECT_EQ(preguntados.size(), caso.avisos.empty() ? 1U : 0U);
    }
}

TEST_F(Reglas4, NifQueElServidorRechaza) {
    valido = false;
    comprobarAvisos(NIFValido(q(u"H12345678"), servidor), {Servidor});
    EXPECT_EQ(preguntados, std::vector<QString>{q(u"H12345678")});
}

TEST_F(Reglas4, ValidacionesDeNifYNombre) {
    const struct {
        const char16_t* nif;
        const char16_t* nombre;
        const char16_t* socio;
        bool valido;
        std::vector<AvisoEsperado> avisos;
    } casos[] = {
        {u"E12345678", u"ENTIDAD", u"S", true, {}},
        {u"E12345678", u"ENTIDAD", u"S", false, {Servidor, NifMalo}},
        {u"A12345678", u"ENTIDAD", u"S", true, {Letra71, NifMalo}},
        {u"E1234", u"ENTIDAD", u"S", true, {Largo, NifMalo}},
        {u"E12345678", u"", u"S", true, {SinNombre}},
        {u"E12345678", u"   ", u"S", true, {SinNombre}},
        {u"E12345678", u"A", u"S", true, {}},
        // Nothing more is checked after a wrong identifier.
        {u"E12345678", u"", u"S", false, {Servidor, NifMalo}},
        {u"E1234", u"", u"S", true, {Largo, NifMalo}},
        // A member may leave the identifier empty, not the name.
        {u"", u"ENTIDAD", u"S", false, {}},
        {u"  ", u"ENTIDAD", u"S", false, {}},
        {u"", u"", u"S", true, {SinNombre}},
        // Only a member gives the name; whatever is there is checked.
        {u"", u"", u"N", true, {}},
        {u"", u"", u" ", true, {}},
        {u"", u"", u"s", true, {}},
        {u"E12345678", u"", u"N", true, {}},
        {u"E12345678", u"", u" ", false, {Servidor, NifMalo}},
    };
    for (const auto& caso : casos) {
        SCOPED_TRACE(s(caso.nif) + "/" + s(caso.nombre) + "/" + s(caso.socio));
        DatosApartado4 r;
        r.NIF = q(caso.nif);
        r.NOMBRE = q(caso.nombre);
        r.IVASOCIO = q(caso.socio);
        valido = caso.valido;
        comprobarAvisos(Validaciones(r, servidor), caso.avisos);
    }
}

TEST_F(Reglas4, ElNifSeMiraSinSuRelleno) {
    DatosApartado4 r;
    r.NIF = q(u"G1234");
    comprobarAvisos(Validaciones(r, servidor), {Largo, NifMalo});
    r.NIF = q(u" G1234567");
    comprobarAvisos(Validaciones(r, servidor), {Letra71, NifMalo});
    r.NIF = q(u"G12345678");
    comprobarAvisos(Validaciones(r, servidor), {});
    EXPECT_EQ(preguntados, std::vector<QString>{q(u"G12345678")});
}

/// The requests that count as data, each enough alone.
TEST_F(Reglas4, CualquierSolicitudEsDato) {
    const char16_t* const datos[] = {u"IRPFOBJET=O", u"IRPFDIRECT=R",     u"IVACAJA=E",
                                     u"IVACUOADU=O", u"IVAAGRIC=A",       u"IVASIMPLIF=A",
                                     u"IVAEXPORT=B", u"IVAEXPORTINTRA=A", u"IVAAGENCIAS=O",
                                     u"IVABIENES=R", u"SONF=O",           u"IVASOCIO=N"};
    for (const auto* dato : datos)
        comprobarAvisos(ValidarIntroduccionDatos(apartado4(dato), Inicio2014), {});
    comprobarAvisos(ValidarIntroduccionDatos(DatosApartado4{}, Inicio2014), {SinDatos});
    comprobarAvisos(ValidarIntroduccionDatos(DatosApartado4{}, Fin2013), {SinDatos});
}

TEST_F(Reglas4, ElNifYElNombreNoSonDatos) {
    const DatosApartado4 r = apartado4(u"NIF=E12345678 NOMBRE=ENTIDAD");
    comprobarAvisos(ValidarIntroduccionDatos(r, Inicio2015), {SinDatos});
}

TEST_F(Reglas4, LaCajaEmpiezaEn2014) {
    const struct {
        qint32 fecha;
        std::vector<AvisoEsperado> avisos;
    } casos[] = {{0, {Caja}}, {Fin2013, {Caja}}, {Inicio2014, {}}, {Fin2014, {}}, {Inicio2015, {}}};
    for (const auto& caso : casos) {
        SCOPED_TRACE(caso.fecha);
        for (const auto* valor : {u"IVACAJA=O", u"IVACAJA=R", u"IVACAJA=E", u"IVACAJA=O SONF=O"})
            comprobarAvisos(ValidarIntroduccionDatos(apartado4(valor), caso.fecha), caso.avisos);
        comprobarAvisos(ValidarIntroduccionDatos(apartado4(u"SONF=O"), caso.fecha), {});
    }
}

}  // namespace
}  // namespace padral::pruebas
