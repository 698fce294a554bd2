// Walks of chance through the whole program, in both languages. PADRAL_WALK_SEED and
// PADRAL_WALK_STEPS walk by hand: one other seed, as far as wanted.

#include <QElapsedTimer>

#include "program/window_fixture.h"
#include "walk/walk_model.h"
#include "walk/walk_start.h"

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

class Paseo : public ::testing::TestWithParam<Camino> {
protected:
    void SetUp() override {
        ASSERT_TRUE(QDir(carpeta_.path()).mkpath(QStringLiteral("Tablas")));
        for (const QString& nombre :
             {QStringLiteral("DPadralLec.mdb"), QStringLiteral("DPadralMod.mdb")})
            ASSERT_TRUE(QFile::copy(QStringLiteral(PADRAL_BINARY_DIR "/data/") + nombre,
                                    carpeta_.filePath(QStringLiteral("Tablas/") + nombre)));
    }
    void arrancar(quint32 semilla, const QString& idioma) {
        azar_ = std::make_unique<Azar>(semilla);
        avisador_ = std::make_unique<AvisadorDelPaseo>(*azar_);
        programa_ =
            std::make_unique<Programa>(Puertos{*avisador_, reloj_, impresora_, nullptr},
                                       QStringLiteral(PADRAL_BINARY_DIR "/bin"), carpeta_.path());
        ASSERT_TRUE(programa_->Iniciar());
        auto& estado = programa_->estado();
        estado.mdi.IDI(idioma);
        estado.act.ActOnline = 1;
        avisador_->HablaEuskera(estado.DesplazamientoIdioma != 0);
        preparadas_ = GuardarPreparadas(programa_->declaracion());
        auto& ventana = programa_->ventana();
        ventana.Anadir_captions();
        programa_->MostrarVentana();
        ventana.showNormal();
        ventana.resize(1280, 720);
        guia_ = std::make_unique<Guia>(&ventana);
        guia_->TomarVentana();
    }
    /// Walks, and stops at the first step after which something does not fit.
    void pasear(int pasos, ModeloDelPaseo& modelo) {
        Paseante paseante(*programa_, *guia_, *avisador_, *azar_, preparadas_,
                          [&](const QString& propiedad) { return modelo.Valor(propiedad); });
        for (dados_ = 0; dados_ < pasos; ++dados_) {
            const int mensajes = avisador_->Mostrados;
            const Accion accion = paseante.Andar();
            const auto* pantalla = PantallaAbierta(programa_->ventana());
            ultimos_ << QStringLiteral("%1 %2 -> %3")
                            .arg(dados_)
                            .arg(accion.descripcion, pantalla ? pantalla->objectName() : QString());
            if (ultimos_.size() > UltimosPasos) ultimos_.removeFirst();
            const auto faltas =
                modelo.Despues(accion, paseante.Pendiente(), avisador_->Mostrados != mensajes) +
                std::exchange(avisador_->Faltas, {});
            if (faltas.isEmpty()) continue;
            ADD_FAILURE() << faltas.join(u'\n').toStdString() << "\nstep " << dados_ << " of\n"
                          << ultimos_.join(u'\n').toStdString();
            return;
        }
    }

    static constexpr qsizetype UltimosPasos = 30;
    QTemporaryDir carpeta_;
    RelojFijo reloj_;
    SinImpresora impresora_;
    std::unique_ptr<Azar> azar_;
    std::unique_ptr<AvisadorDelPaseo> avisador_;
    std::unique_ptr<Programa> programa_;
    std::unique_ptr<Guia> guia_;
    QList<qint32> preparadas_;
    QStringList ultimos_;
    int dados_ = 0;
};

TEST_P(Paseo, RegistrosPantallasYFicheroConcuerdan) {
    Camino camino = GetParam();
    if (qEnvironmentVariableIsSet("PADRAL_WALK_SEED"))
        camino.semilla = qEnvironmentVariable("PADRAL_WALK_SEED").toUInt();
    if (qEnvironmentVariableIsSet("PADRAL_WALK_STEPS"))
        camino.pasos = qEnvironmentVariable("PADRAL_WALK_STEPS").toInt();
    QElapsedTimer reloj;
    reloj.start();
    arrancar(camino.semilla, QString::fromLatin1(camino.idioma));
    ModeloDelPaseo modelo(*programa_, programa_->estado().RutaBDModificacion);
    pasear(camino.pasos, modelo);
    std::cout << "walk: seed " << camino.semilla << ' ' << camino.idioma << ", " << dados_
              << " steps, " << modelo.Abiertas << " opened, " << modelo.Guardadas << " saved, "
              << modelo.Borradas << " deleted, " << static_cast<double>(reloj.elapsed() / 100) / 10
              << " s\n";
    if (HasFailure()) return;
    for (const char* pantalla : PorVer)
        EXPECT_GT(modelo.Visitas.value(QString::fromLatin1(pantalla)), 0) << pantalla;
    EXPECT_GE(modelo.Guardadas, 5);
}

INSTANTIATE_TEST_SUITE_P(Semillas, Paseo,
                         ::testing::Values(Camino{417, "C"}, Camino{418, "E"}, Camino{20, "C"},
                                           Camino{2015, "E"}, Camino{1, "C"}));

}  // namespace
}  // namespace padral::pruebas
