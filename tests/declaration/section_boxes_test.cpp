// The section boxes: which can be ticked, what unticking erases.

#include "declaration/section_boxes.h"

#include "declaration/declaration_fixture.h"
#include "declaration/full_declaration.h"

namespace padral::pruebas {
namespace {

struct FilaCasilla {
    Apartado apartado;
    const char16_t *casilla, *boton;
    int caption, ayuda, pregunta, titulo;
    /// Enabled for the types "", "P", "I", "M", "C".
    std::array<bool, 5> habilitada;
};
constexpr FilaCasilla Filas[] = {
    {Apartado::Dos, u"chkApartado2", u"cmdApartado2", 422, 423, 519, 520, {1, 1, 1, 1, 1}},
    {Apartado::Tres, u"chkApartado3", u"cmdApartado3", 420, 421, 521, 522, {0, 0, 1, 1, 0}},
    {Apartado::Cuatro, u"chkApartado4", u"cmdApartado4", 418, 419, 523, 524, {0, 1, 1, 1, 0}},
    {Apartado::Cinco, u"chkApartado5", u"cmdApartado5", 416, 417, 525, 526, {0, 0, 0, 1, 1}},
    {Apartado::Seis, u"chkApartado6", u"cmdApartado6", 414, 415, 527, 528, {0, 0, 0, 0, 0}},
    {Apartado::Siete, u"chkApartado7", u"cmdApartado7", 412, 413, 529, 530, {0, 1, 1, 1, 1}},
    {Apartado::AnexoI, u"chkApartado8", u"cmdAnexo", 410, 411, 531, 532, {1, 1, 1, 1, 1}},
    {Apartado::AnexoII, u"chkAnexoII", u"cmdAnexoII", 751, 752, 746, 747, {0, 1, 1, 1, 0}},
};
constexpr const char16_t* Tipos[] = {u"", u"P", u"I", u"M", u"C"};

class CasillaDeApartado : public ConDeclaracion,
                          public ::testing::WithParamInterface<FilaCasilla> {};

TEST_P(CasillaDeApartado, HabilitadaSegunElTipo) {
    const auto& fila = GetParam();
    const auto& casilla = CasillaDe(fila.apartado);
    g.DNI = QStringLiteral("A12345674");
    for (std::size_t i = 0; i < std::size(Tipos); ++i)
        EXPECT_EQ(casilla.habilitada(d, q(Tipos[i])), fila.habilitada[i]) << s(Tipos[i]);
    EXPECT_EQ(casilla.habilitada(d, QStringLiteral(" ")), fila.habilitada[0])
        << "a blank is no type";
}

TEST_P(CasillaDeApartado, NombresTextosYPregunta) {
    const auto& fila = GetParam();
    const auto& casilla = CasillaDe(fila.apartado);
    EXPECT_EQ(q(casilla.casilla), q(fila.casilla));
    EXPECT_EQ(q(casilla.boton), q(fila.boton));
    EXPECT_EQ(casilla.caption, fila.caption);
    EXPECT_EQ(casilla.ayuda, fila.ayuda);
    EXPECT_EQ(casilla.pregunta, fila.pregunta);
    EXPECT_EQ(casilla.tituloPregunta, fila.titulo);
}
INSTANTIATE_TEST_SUITE_P(Filas, CasillaDeApartado, ::testing::ValuesIn(Filas));

class RegistroDeApartado : public ConDeclaracion, public ::testing::WithParamInterface<Apartado> {};

TEST_P(RegistroDeApartado, BorrarloVaciaRegistroCopiaMarcasYBandera) {
    const Apartado apartado = GetParam();
    const cDeclaraciones limpia{estado, pantallas, lista};
    llenarTodo(d);
    g.*CasillaDe(apartado).bandera = QStringLiteral("X");
    ASSERT_TRUE(lleno(d, apartado) && modificado(d, apartado));
    BorrarApartado(d, apartado);
    EXPECT_FALSE(lleno(d, apartado));
    EXPECT_FALSE(modificado(d, apartado));
    EXPECT_EQ(g.*CasillaDe(apartado).bandera, QString());
    EXPECT_EQ(filaDe(d, apartado), filaDe(limpia, apartado));
    recuperarCopia(d, apartado);
    EXPECT_FALSE(lleno(d, apartado)) << "the copy brings nothing back";
    EXPECT_FALSE(modificado(d, apartado));
    EXPECT_EQ(filaDe(d, apartado), filaDe(limpia, apartado));
    for (const auto otro : SeccionesConRegistro) EXPECT_EQ(lleno(d, otro), otro != apartado);
}
INSTANTIATE_TEST_SUITE_P(Secciones, RegistroDeApartado, ::testing::ValuesIn(SeccionesConRegistro));

using AnexoI = ConDeclaracion;

TEST_F(AnexoI, TieneDatosMientrasQuedenParticipes) {
    EXPECT_FALSE(lleno(d, Apartado::AnexoI));
    const auto unico = ponerParticipe(u"12345678Z", u"A");
    EXPECT_TRUE(lleno(d, Apartado::AnexoI));
    unico->Modo = QStringLiteral("E");
    d.DecrementarNumParti();
    EXPECT_FALSE(lleno(d, Apartado::AnexoI));
}

TEST_F(AnexoI, BorrarloGuardaLosDelAlmacenComoBorradosYSueltaLosDemas) {
    const auto guardado = ponerParticipe(u"12345678Z", u"C", 5);
    ponerParticipe(u"X1234567L", u"A");
    const auto otro = ponerParticipe(u"A12345674", u"A", 6);
    g.AnexoI = QStringLiteral("X");
    BorrarApartado(d, Apartado::AnexoI);
    ASSERT_EQ(d.participantes.colParticipes.size(), 2U);
    EXPECT_EQ(d.participantes.colParticipes[0], guardado);
    EXPECT_EQ(d.participantes.colParticipes[1], otro);
    EXPECT_EQ(guardado->Modo.texto(), QStringLiteral("E"));
    EXPECT_EQ(otro->Modo.texto(), QStringLiteral("E"));
    EXPECT_EQ(d.NumParti, 0);
    EXPECT_EQ(g.NumParti, 0);
    EXPECT_EQ(d.parLista.NUMPARTLIST, 0);
    EXPECT_EQ(g.AnexoI, QString());
}

struct Forzado {
    const char16_t *dni, *causa1;
    qint16 causaCese;
    bool forzado;
};
class AnexoIForzado : public ConDeclaracion, public ::testing::WithParamInterface<Forzado> {};

TEST_P(AnexoIForzado, PorNifTipoYCausaDeCese) {
    const auto& [dni, causa1, causaCese, forzado] = GetParam();
    g.DNI = q(dni);
    g.Causa1 = q(causa1);
    d.apartado6.CAUSA = causaCese;
    EXPECT_EQ(d.AnexoIForzado(), forzado);
    EXPECT_EQ(CasillaDe(Apartado::AnexoI).habilitada(d, g.Causa1), !forzado);
    g.AnexoI = QStringLiteral(" ");
    EXPECT_EQ(d.MarcarAnexoPorCese(), forzado);
    EXPECT_EQ(g.AnexoI, forzado ? QStringLiteral("X") : QStringLiteral(" "));
    g.AnexoI = QStringLiteral("X");
    d.MarcarAnexoPorCese();
    EXPECT_EQ(g.AnexoI, QStringLiteral("X")) << "it marks, it does not unmark";
}
INSTANTIATE_TEST_SUITE_P(
    Filas, AnexoIForzado,
    ::testing::Values(Forzado{u"E12345674", u"P", 0, true}, Forzado{u"E12345674", u"I", 0, true},
                      Forzado{u"E12345674", u"M", 10, false}, Forzado{u"E12345674", u"", 10, false},
                      Forzado{u"G12345674", u"P", 0, false}, Forzado{u"J12345674", u"I", 10, false},
                      Forzado{u"E12345674", u"C", 10, true}, Forzado{u"G12345674", u"C", 99, true},
                      Forzado{u"H12345674", u"C", 10, true}, Forzado{u"J12345674", u"C", 99, true},
                      Forzado{u"E12345674", u"C", 0, false}, Forzado{u"E12345674", u"C", 20, false},
                      Forzado{u"A12345674", u"C", 10, false},
                      Forzado{u"12345678Z", u"C", 99, false}, Forzado{u"", u"C", 10, false},
                      Forzado{u"", u"P", 0, false}));

}  // namespace
}  // namespace padral::pruebas
