// The six steps of the entry check of section 5.

#include "sections/section5_cases.h"

namespace padral::pruebas {
namespace {

const AvisoEsperado Incompleto{82, 83};
const AvisoEsperado SinDatos{704, 83};
const AvisoEsperado SinRegimen{872, 83};
const AvisoEsperado Anterior{871, 83, u"Ap5- "};
constexpr qint32 Fechas[] = {0, Fin2013, Inicio2014, Fin2014, Inicio2015};
constexpr const char16_t* Socio = u"IVASOCIO=S NIF=E12345678 NOMBRE=ENTIDAD";

TEST(Entrada5, ElOrdenDeLosPasos) {
    const std::pair<int, const char16_t*> esperados[] = {{0, u""},   {82, u""},  {704, u""},
                                                         {872, u""}, {872, u""}, {871, u"Ap5- "}};
    const auto pasos = PasosIntroduccion5();
    ASSERT_EQ(pasos.size(), std::size(esperados));
    for (std::size_t i = 0; i < pasos.size(); ++i) {
        EXPECT_EQ(pasos[i].numero, static_cast<int>(i) + 1);
        EXPECT_EQ(pasos[i].texto, esperados[i].first);
        EXPECT_EQ(q(pasos[i].prefijo), q(esperados[i].second));
    }
}

/// Step 1 accepts even a section 5 that is blank or all "N".
TEST(Entrada5, Paso1SoloSocio) {
    const DatosApartado4 socio = apartado4(Socio);
    for (const qint32 fecha : Fechas) {
        comprobarAvisos(ValidarIntroduccionDatos(RespuestasApartado5{}, socio, fecha), {});
        comprobarAvisos(ValidarIntroduccionDatos(respuestas(u""), socio, fecha), {});
        comprobarAvisos(ValidarIntroduccionDatos(respuestas(u"IVACAJA=S"), socio, fecha), {});
    }
}

TEST(Entrada5, Paso1NoValeConOtraSolicitud) {
    const char16_t* const otras[] = {
        u"IRPFDIRECT=O", u"IRPFOBJET=O", u"IVAAGENCIAS=O",    u"IVACAJA=O",    u"IVAAGRIC=A",
        u"IVABIENES=O",  u"IVAEXPORT=A", u"IVAEXPORTINTRA=A", u"IVASIMPLIF=A", u"SONF=O"};
    for (const auto* otra : otras) {
        SCOPED_TRACE(s(otra));
        DatosApartado4 r = apartado4(Socio);
        poner(r, otra);
        comprobarAvisos(ValidarIntroduccionDatos(RespuestasApartado5{}, r, Inicio2015),
                        {Incompleto});
        comprobarAvisos(ValidarIntroduccionDatos(respuestas(u""), r, Inicio2015), {SinDatos});
    }
}

TEST(Entrada5, Paso1LasCuotasDeAduanasNoEstorban) {
    DatosApartado4 r = apartado4(Socio);
    poner(r, u"IVACUOADU=O");
    comprobarAvisos(ValidarIntroduccionDatos(RespuestasApartado5{}, r, Inicio2015), {});
    poner(r, u"IVASOCIO=N");
    comprobarAvisos(ValidarIntroduccionDatos(RespuestasApartado5{}, r, Inicio2015), {});
}

TEST(Entrada5, Paso1PideLosTresDatosDelSocio) {
    for (const auto* sin : {u"IVASOCIO=", u"NIF=", u"NOMBRE="}) {
        SCOPED_TRACE(s(sin));
        DatosApartado4 r = apartado4(Socio);
        poner(r, sin);
        comprobarAvisos(ValidarIntroduccionDatos(RespuestasApartado5{}, r, Inicio2015),
                        {Incompleto});
    }
    comprobarAvisos(ValidarIntroduccionDatos(RespuestasApartado5{}, {}, Inicio2015), {Incompleto});
}

TEST(Entrada5, Paso2CadaUnaDeLas17) {
    for (const auto* nombre : Las17) {
        SCOPED_TRACE(s(nombre));
        RespuestasApartado5 r = ramaSi();
        TablaApartado5()[posicion(TablaApartado5(), q(nombre))].escribir(r, q(u" "));
        for (const qint32 fecha : Fechas)
            comprobarAvisos(ValidarIntroduccionDatos(r, {}, fecha), {Incompleto});
    }
}

TEST(Entrada5, Paso2LasOtrasOncePuedenFaltar) {
    RespuestasApartado5 r = ramaSi();
    poner(r,
          u"IRPFOBJETIVA= GENERAL= RECARGO= AGENCIASOPERACION= AGENCIASGLOBAL= BIENESUSADOS= "
          u"BIENESMARGEN= Agric= SIMPLIF= OPEXSINDCHO= IVACAJA=");
    for (const qint32 fecha : Fechas) comprobarAvisos(ValidarIntroduccionDatos(r, {}, fecha), {});
}

/// Any of the 17 answered yes is a datum; none of the other eleven is.
TEST(Entrada5, Paso3AlgunDatoEntreLas17) {
    for (const auto& columna : TablaApartado5()) {
        SCOPED_TRACE(s(columna.nombre));
        const bool cuenta =
            std::ranges::any_of(Las17, [&](auto n) { return q(n) == q(columna.nombre); });
        RespuestasApartado5 r = respuestas(u"");
        columna.escribir(r, q(u"S"));
        std::vector<AvisoEsperado> avisos;
        if (!cuenta) avisos.push_back(SinDatos);
        comprobarAvisos(ValidarIntroduccionDatos(r, {}, Inicio2015), avisos);
    }
    comprobarAvisos(ValidarIntroduccionDatos(respuestas(u""), {}, Fin2013), {SinDatos});
}

TEST(Entrada5, Paso3UnaMinusculaNoEsUnNo) {
    for (const auto* nombre : Las17) {
        SCOPED_TRACE(s(nombre));
        RespuestasApartado5 r = respuestas(u"");
        TablaApartado5()[posicion(TablaApartado5(), q(nombre))].escribir(r, q(u"n"));
        for (const qint32 fecha : Fechas)
            comprobarAvisos(ValidarIntroduccionDatos(r, {}, fecha), {});
    }
}

TEST(Entrada5, Pasos4A6Caja) {
    const struct {
        const char16_t* cambios;    ///< on a record with every answer "N" but GRANEMPRESA
        bool hasta2014, desde2015;  ///< whether the regimes let it pass
    } casos[] = {
        {u"IVACAJA=S", false, false},
        {u"IVACAJA=S IVA=S", false, false},
        {u"IVACAJA=S GENERAL=S", false, false},
        {u"IVACAJA=S IVA=S GENERAL=S", true, true},
        {u"IVACAJA=S IVA=S GENERAL=", true, true},
        {u"IVACAJA=S IVA=S GENERAL=n", true, true},
        {u"IVACAJA=S IVA=n GENERAL=S", true, true},
        {u"IVACAJA=S IVA=n", false, false},
        {u"IVACAJA=S IVA=S AGENCIASOPERACION=S", true, true},
        {u"IVACAJA=S IVA=S AGENCIASGLOBAL=S", true, false},
        {u"IVACAJA=S IVA=S AGENCIASGLOBAL=", true, false},
        {u"IVACAJA=S IVA=S BIENESUSADOS=S", true, true},
        {u"IVACAJA=S IVA=S BIENESMARGEN=S", true, true},
        {u"IVACAJA=S IVA=S RECARGO=S Agric=S SIMPLIF=S OPEXSINDCHO=S", false, false},
    };
    for (const auto& caso : casos) {
        SCOPED_TRACE(s(caso.cambios));
        RespuestasApartado5 r = respuestas(u"GRANEMPRESA=S");
        poner(r, caso.cambios);
        for (const qint32 fecha : Fechas) {
            SCOPED_TRACE(fecha);
            const bool pasa = fecha < Inicio2015 ? caso.hasta2014 : caso.desde2015;
            std::vector<AvisoEsperado> avisos;
            if (!pasa)
                avisos.push_back(SinRegimen);  // before the date is looked at
            else if (fecha < Inicio2014)
                avisos.push_back(Anterior);
            comprobarAvisos(ValidarIntroduccionDatos(r, {}, fecha), avisos);
        }
    }
}

TEST(Entrada5, SinCajaNoHayPasos4A6) {
    for (const auto* caja : {u"IVACAJA=N", u"IVACAJA=", u"IVACAJA=s"}) {
        RespuestasApartado5 r = respuestas(u"GRANEMPRESA=S");
        poner(r, caja);
        for (const qint32 fecha : Fechas)
            comprobarAvisos(ValidarIntroduccionDatos(r, {}, fecha), {});
    }
}

}  // namespace
}  // namespace padral::pruebas
