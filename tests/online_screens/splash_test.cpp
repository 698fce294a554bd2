// The splash and its pause.

#include <QPixmap>
#include <QScreen>

#include "online/frm_inicio.h"
#include "online_screens/dialogs_fixture.h"

namespace padral::pruebas {
namespace {

class Inicio : public ConDialogo {
protected:
    frmInicio* crear() {
        auto nuevo = std::make_unique<frmInicio>(estado, ordenes);
        frmInicio* inicio = nuevo.get();
        dialogo = std::move(nuevo);
        return inicio;
    }
};

TEST_F(Inicio, ShowsBothLanguagesAndItsOwnArtwork) {
    estado.VersionPrograma = QStringLiteral("1.30.1");
    for (const char* idioma : {"C", "E"}) {
        estado.mdi.IDI(QString::fromLatin1(idioma));
        crear();
        EXPECT_EQ(rotulo("lblTitulo"), QStringLiteral("MODELO 417 / 417 EREDUA"));
        EXPECT_EQ(rotulo("lblTitulo1"), QStringLiteral("Padral Aitorpena / Declaración Padral"));
        EXPECT_EQ(rotulo("lblVersion"), QStringLiteral("Bertsioa/Versión1.30.1"));
        EXPECT_EQ(rotulo("lblAct"), QStringLiteral("Eguneratzen / Buscando actualización ..."));
        EXPECT_TRUE(rotulo("Label1").startsWith(QStringLiteral("Padral Aitorpenaren Laguntza")));
        EXPECT_TRUE(
            rotulo("lblDescripcion").startsWith(QStringLiteral("La aplicación Declaración")));
        EXPECT_FALSE(rotulo("lblcopy").isEmpty());
        EXPECT_FALSE(de<QLabel>("Image1")->pixmap(Qt::ReturnByValue).isNull());
        EXPECT_TRUE(dialogo->windowFlags().testFlag(Qt::WindowStaysOnTopHint));
    }
}

TEST_F(Inicio, ThePauseCountsTheCheckIn) {
    const struct {
        qint16 aviso;
        int comprobacion;  ///< milliseconds that the check takes
        std::vector<int> esperas;
        int total;
    } filas[] = {{1, 0, {4000}, 4000},    {1, 1000, {3000}, 4000}, {1, 3999, {1}, 4000},
                 {1, 4000, {}, 4000},     {1, 9000, {}, 9000},     {0, 1000, {3000}, 3000},
                 {-1, 1000, {3000}, 3000}};
    for (const auto& f : filas) {
        estado.act.ActOnline = f.aviso;
        reloj.Esperas.clear();
        hechos.clear();
        alComprobar = [&] { reloj.Hora = reloj.Hora.addMSecs(f.comprobacion); };
        const QDateTime antes = reloj.Ahora();
        crear()->Cargar();
        EXPECT_EQ(reloj.Esperas, f.esperas) << f.aviso << ' ' << f.comprobacion;
        EXPECT_EQ(antes.msecsTo(reloj.Ahora()), f.total) << f.aviso << ' ' << f.comprobacion;
        EXPECT_EQ(hechos.count(QStringLiteral("check")), f.aviso == 1 ? 1 : 0);
    }
}

TEST_F(Inicio, ASetBackClockHoldsTheStartNoLongerThanThePause) {
    estado.act.ActOnline = 1;
    alComprobar = [this] { reloj.Hora = reloj.Hora.addDays(-1); };
    crear()->Cargar();
    EXPECT_EQ(reloj.Esperas, std::vector<int>{4000});
}

TEST_F(Inicio, SaysThatItChecksWhileItDoes) {
    estado.act.ActOnline = 1;
    bool durante = false;
    alComprobar = [&] { durante = dialogo->isVisible() && de("lblAct")->isVisible(); };
    bool despues = true;
    reloj.alEsperar = [&] { despues = de("lblAct")->isVisible(); };
    auto* inicio = crear();
    const QSize tamano = inicio->size();
    EXPECT_FALSE(de("lblAct")->isVisibleTo(inicio));
    inicio->Cargar();
    EXPECT_TRUE(durante);
    EXPECT_FALSE(despues);
    EXPECT_EQ(inicio->size(), tamano);
}

TEST_F(Inicio, WithoutACheckTheLineNeverShows) {
    estado.act.ActOnline = 0;
    bool visible = true;
    reloj.alEsperar = [&] { visible = de("lblAct")->isVisible(); };
    crear()->Cargar();
    EXPECT_FALSE(visible);
    EXPECT_TRUE(dialogo->isVisible());
}

}  // namespace
}  // namespace padral::pruebas
