// The request boxes: which types refuse them, and with what message.

#include "declaration/declaration_fixture.h"
#include "declaration/section_boxes.h"

namespace padral::pruebas {
namespace {

struct FilaSolicitud {
    const char16_t* casilla;
    int caption;
    char16_t letra;
    /// Refused for "", "P", "I", "M", "C".
    std::array<bool, 5> rechazada;
    int mensaje;
};
constexpr FilaSolicitud Filas[] = {
    {u"chkPorComienzo", 396, u'A', {0, 0, 0, 1, 1}, 448},
    {u"chkModificacionFormaJuridica", 403, u'B', {0, 1, 1, 0, 1}, 450},
    {u"chkAnulacionPorCese", 402, u'C', {0, 1, 1, 1, 0}, 451},
    {u"chkPorExtravio", 399, u'D', {0, 0, 0, 0, 0}, 0},
    {u"chkPorDefinitivo", 398, u'E', {0, 0, 0, 0, 0}, 0},
    {u"chkPorOtrasCausas", 397, u'F', {0, 0, 0, 0, 0}, 0},
};

TEST(Solicitudes, SeisCasillasConLosTiposQueLasRechazan) {
    const auto casillas = CasillasSolicitud();
    for (std::size_t i = 0; i < casillas.size(); ++i) {
        SCOPED_TRACE(s(Filas[i].casilla));
        EXPECT_EQ(q(casillas[i].casilla), q(Filas[i].casilla));
        EXPECT_EQ(casillas[i].caption, Filas[i].caption);
        EXPECT_EQ(casillas[i].letra, QChar(Filas[i].letra));
        EXPECT_EQ(casillas[i].mensaje, Filas[i].mensaje);
        const char16_t tipos[] = {u'P', u'I', u'M', u'C'};
        for (std::size_t t = 0; t < 4; ++t)
            EXPECT_EQ(q(casillas[i].prohibidas).contains(QChar(tipos[t])),
                      Filas[i].rechazada[t + 1]);
    }
}

}  // namespace
}  // namespace padral::pruebas
