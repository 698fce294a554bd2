// Walks of chance through the whole program, in both languages. PADRAL_WALK_SEED and
// PADRAL_WALK_STEPS walk by hand: one other seed, as far as wanted.

#include <QElapsedTimer>

#include "walk/walk_fixture.h"

namespace padral::pruebas {
namespace {

struct Camino {
    quint32 semilla;
    const char* idioma;
    int pasos = 1000;
};
void PrintTo(const Camino& c, std::ostream* salida) { *salida << c.semilla << ' ' << c.idioma; }

/// Screens that every walk must have seen.
constexpr const char* PorVer[] = {"FrmDatGen",         "FrmDecLista",      "FrmApartado2",
                                  "FrmApartado3",      "frmApartado4",     "FrmApartado3_2015",
                                  "frmApartado4_2015", "frmApartado5",     "frmApartado6",
                                  "frmApartado5_2015", "FrmApartado7",     "frmListaParticipes",
                                  "frmAnexoII",        "frmDatosParticipe"};
constexpr int GuardadasPorVer = 5;

class Paseo : public ConPaseo, public ::testing::WithParamInterface<Camino> {
protected:
    /// Walks, and stops at the first step after which something does not fit.
    void pasear(int pasos) {
        Paseante paseante(*programa_, *guia_, *avisador_, *azar_, preparadas_,
                          [&](const QString& propiedad) { return modelo_->Valor(propiedad); });
        bool bien = true;
        while (bien && dados_ < pasos) {
            const int mensajes = avisador_->Mostrados;
            const Accion accion = paseante.Andar();
            bien = cotejar(accion, paseante.Pendiente(), avisador_->Mostrados != mensajes);
        }
    }
    void contar(quint32 semilla, const QElapsedTimer& reloj) {
        std::cout << "walk: seed " << semilla << ' ' << (euskera() ? 'E' : 'C') << ", " << dados_
                  << " steps, " << modelo_->Abiertas << " opened, " << modelo_->Guardadas
                  << " saved, " << modelo_->Borradas << " deleted, "
                  << static_cast<double>(reloj.elapsed() / 100) / 10 << " s\n";
    }
};

TEST_P(Paseo, RegistrosPantallasYFicheroConcuerdan) {
    Camino camino = GetParam();
    if (qEnvironmentVariableIsSet("PADRAL_WALK_SEED"))
        camino.semilla = qEnvironmentVariable("PADRAL_WALK_SEED").toUInt();
    if (qEnvironmentVariableIsSet("PADRAL_WALK_STEPS"))
        camino.pasos = qEnvironmentVariableIntValue("PADRAL_WALK_STEPS");
    QElapsedTimer reloj;
    reloj.start();
    arrancar(camino.semilla, QString::fromLatin1(camino.idioma));
    pasear(camino.pasos);
    contar(camino.semilla, reloj);
    if (HasFailure() || camino.pasos < GetParam().pasos) return;
    for (const char* pantalla : PorVer)
        EXPECT_GT(modelo_->Visitas.value(QString::fromLatin1(pantalla)), 0) << pantalla;
    EXPECT_GE(modelo_->Guardadas, GuardadasPorVer);
}

INSTANTIATE_TEST_SUITE_P(Semillas, Paseo,
                         ::testing::Values(Camino{417, "C"}, Camino{418, "E"}, Camino{20, "C"},
                                           Camino{2015, "E"}));

}  // namespace
}  // namespace padral::pruebas
