// The arrow that stands at the answer in hand, and how the keys go from box to box.

#include "tax/section7_fixture.h"

namespace padral::pruebas {
namespace {

TEST_F(PantallaApartado7, LaFlechaEstaDondeElFocoYLuegoVuelveElRotulo) {
    abrir();
    const auto casillas = casillas7();
    EXPECT_EQ(foco(), q(u"chkLimSupPais1"));
    for (const auto& casilla : casillas)
        EXPECT_EQ(rotulo(casilla.nombre),
                  foco() == casilla.nombre ? casilla.conFoco : casilla.sinFoco)
            << casilla.nombre.toStdString();
    for (const auto& casilla : casillas) {
        SCOPED_TRACE(casilla.nombre.toStdString());
        enfocar(casilla.nombre);
        EXPECT_EQ(rotulo(casilla.nombre), casilla.conFoco);
        c(q(u"cmdInicio"))->setFocus(Qt::TabFocusReason);
        EXPECT_EQ(rotulo(casilla.nombre), casilla.sinFoco);
    }
}

TEST_F(PantallaApartado7, LasCuatroQueAlternanEnEuskera) {
    enEuskera();
    abrir();
    const struct {
        const char16_t *nombre, *conFoco, *sinFoco;
    } casos[] = {{u"chkMasLimEuros", u"     ==> BAI", u"            BAI"},
                 {u"chkMenosLimEuros", u"              ==> EZ", u"                     EZ"},
                 {u"chkOpcion", u"=>AUKERATZEA", u"     AUKERATZEA"},
                 {u"chkRevocacion", u"==> ATZERA EGITEA", u"        ATZERA EGITEA"}};
    for (const auto& caso : casos) {
        EXPECT_EQ(rotulo(q(caso.nombre)), q(caso.sinFoco));
        enfocar(q(caso.nombre));
        EXPECT_EQ(rotulo(q(caso.nombre)), q(caso.conFoco));
        c(q(u"cmdInicio"))->setFocus(Qt::TabFocusReason);
        EXPECT_EQ(rotulo(q(caso.nombre)), q(caso.sinFoco));
    }
}

/// Where the drawing of a box ends.
int fin(QWidget& caja) {
    const QImage todo = caja.grab().toImage();
    int x = todo.width() - 1;
    const auto vacia = [&todo](int columna) {
        for (int y = 2; y < todo.height() - 2; ++y)
            if (todo.pixel(columna, y) != todo.pixel(todo.width() - 1, y)) return false;
        return true;
    };
    while (x > 0 && vacia(x)) --x;
    return x;
}

TEST_F(PantallaApartado7, LaFlechaNoMueveNada) {
    abrir();
    const auto controles = pantalla->findChildren<QWidget*>();
    const auto sitios = [&controles] {
        std::vector<QRect> todos;
        for (const auto* w : controles) todos.push_back(w->geometry());
        return todos;
    };
    const auto antes = sitios();
    for (const auto& casilla : casillas7()) {
        enfocar(casilla.nombre);
        QCoreApplication::processEvents();
        EXPECT_EQ(sitios(), antes) << casilla.nombre.toStdString();
    }
}

TEST_F(PantallaApartado7, LaPalabraDeUnaCasillaNoSeMueveConLaFlecha) {
    for (const bool euskera : {false, true}) {
        if (euskera) enEuskera();
        abrir();
        for (const auto* nombre :
             {u"chkMasLimEuros", u"chkMenosLimEuros", u"chkOpcion", u"chkRevocacion"}) {
            SCOPED_TRACE(s(nombre));
            auto& caja = *c(q(nombre));
            const int antes = fin(caja);
            EXPECT_GT(antes, 40) << "room for the arrow";
            enfocar(q(nombre));
            EXPECT_NEAR(fin(caja), antes, 1);
        }
    }
}

TEST_F(PantallaApartado7, ElTabuladorYElIntroSiguenElOrdenDeLectura) {
    for (const auto codigo : {Qt::Key_Tab, Qt::Key_Return, Qt::Key_Enter, Qt::Key_Right}) {
        abrir();
        for (const auto& casilla : casillas7()) {
            EXPECT_EQ(foco(), casilla.nombre);
            tecla(codigo);
        }
        EXPECT_EQ(foco(), q(u"cmdInicio"));
        EXPECT_EQ(r.ObtenerDatos(), filaCon({})) << "moving on is no answer";
        EXPECT_FALSE(r.Modificaciones);
    }
    auto casillas = casillas7();
    std::reverse(casillas.begin(), casillas.end());
    for (const auto codigo : {Qt::Key_Backtab, Qt::Key_Left}) {
        enfocar(casillas.front().nombre);
        for (const auto& casilla : casillas) {
            EXPECT_EQ(foco(), casilla.nombre);
            tecla(codigo);
        }
    }
}

TEST_F(PantallaApartado7, ArribaYAbajoSiguenLaColumna) {
    abrir();
    for (const auto& columna : Columnas7) {
        const auto nombre = [&](const Estado7& e) {
            return q(columna.prefijo) + QString::number(e.sufijo);
        };
        enfocar(nombre(Estados7[0]));
        tecla(Qt::Key_Up);
        for (const auto& e : Estados7) {
            EXPECT_EQ(foco(), nombre(e));
            tecla(Qt::Key_Down);
        }
        EXPECT_EQ(foco(), q(u"chkAgric"));
        enfocar(nombre(Estados7[26]));
        for (std::size_t i = 27; i-- > 0;) {
            EXPECT_EQ(foco(), nombre(Estados7[i]));
            tecla(Qt::Key_Up);
        }
        EXPECT_EQ(foco(), nombre(Estados7[0]));
    }
    EXPECT_EQ(r.ObtenerDatos(), filaCon({}));
    enfocar(q(u"chkAgric"));
    tecla(Qt::Key_Down);
    EXPECT_EQ(foco(), q(u"chkExentos"));
    tecla(Qt::Key_Up);
    tecla(Qt::Key_Up);
    EXPECT_EQ(foco(), q(u"chkRevPais24"));
}

TEST_F(PantallaApartado7, TrasCadaRespuestaElFocoSigue) {
    abrir();
    const auto casillas = casillas7();
    for (std::size_t i = 0; i < casillas.size(); ++i) {
        pulsar(casillas[i].nombre);
        const bool ultima = i + 1 == casillas.size();
        EXPECT_EQ(foco(), ultima ? q(u"cmdInicio") : casillas[i + 1].nombre);
        EXPECT_EQ(rotulo(casillas[i].nombre), casillas[i].sinFoco);
        if (!ultima) {
            EXPECT_EQ(rotulo(casillas[i + 1].nombre), casillas[i + 1].conFoco);
        }
    }
}

}  // namespace
}  // namespace padral::pruebas
