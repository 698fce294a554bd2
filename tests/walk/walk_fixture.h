#pragma once
// The real program in this process for a walk: its windows, a store with declarations, message
// boxes answered by chance.

#include "program/window_fixture.h"
#include "walk/walk_model.h"
#include "walk/walk_start.h"

namespace padral::pruebas {

class ConPaseo : public ::testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(QDir(carpeta_.path()).mkpath(QStringLiteral("Tablas")));
        for (const QString& nombre :
             {QStringLiteral("DPadralLec.mdb"), QStringLiteral("DPadralMod.mdb")})
            ASSERT_TRUE(QFile::copy(QStringLiteral(PADRAL_BINARY_DIR "/data/") + nombre,
                                    carpeta_.filePath(QStringLiteral("Tablas/") + nombre)));
    }

    /// Starts the program in a language, "C" or "E", with the prepared declarations in the store.
    void arrancar(quint32 semilla, const QString& idioma) {
        azar_ = std::make_unique<Azar>(semilla);
        avisador_ = std::make_unique<AvisadorDelPaseo>(*azar_);
        programa_ =
            std::make_unique<Programa>(Puertos{*avisador_, reloj_, impresora_},
                                       QStringLiteral(PADRAL_BINARY_DIR "/bin"), carpeta_.path());
        ASSERT_TRUE(programa_->Iniciar());
        auto& estado = programa_->estado();
        estado.mdi.IDI(idioma);
        estado.act.ActOnline = 1;
        estado.act.GuardarActOnline(estado.RutaBDModificacion);
        avisador_->HablaEuskera(euskera());
        preparadas_ = GuardarPreparadas(programa_->declaracion());
        auto& ventana = programa_->ventana();
        ventana.Anadir_captions();
        programa_->MostrarVentana();
        ventana.showNormal();
        ventana.resize(1280, 720);
        // Nobody looks: a quarter of the time would go into painting.
        ventana.setUpdatesEnabled(false);
        guia_ = std::make_unique<Guia>(&ventana);
        guia_->TomarVentana();
        modelo_ = std::make_unique<ModeloDelPaseo>(*programa_, estado.RutaBDModificacion);
    }
    bool euskera() const { return programa_->estado().DesplazamientoIdioma != 0; }
    QWidget* pantalla() const { return PantallaAbierta(programa_->ventana()); }
    QString formulario() const { return pantalla() ? pantalla()->objectName() : QString(); }

    /// Asks the model about a step that was done; notes it. False: something does not fit.
    bool cotejar(const Accion& accion, const QString& pendiente, bool hablo) {
        ultimos_
            << QStringLiteral("%1 %2 -> %3").arg(dados_++).arg(accion.descripcion, formulario());
        if (ultimos_.size() > UltimosPasos) ultimos_.removeFirst();
        const auto faltas =
            modelo_->Despues(accion, pendiente, hablo) + std::exchange(avisador_->Faltas, {});
        if (faltas.isEmpty()) return true;
        ADD_FAILURE() << faltas.join(u'\n').toStdString() << "\nthe last steps:\n"
                      << ultimos_.join(u'\n').toStdString();
        return false;
    }

    static constexpr qsizetype UltimosPasos = 30;
    QTemporaryDir carpeta_;
    RelojFijo reloj_;
    SinImpresora impresora_;
    std::unique_ptr<Azar> azar_;
    std::unique_ptr<AvisadorDelPaseo> avisador_;
    std::unique_ptr<Programa> programa_;
    std::unique_ptr<Guia> guia_;
    std::unique_ptr<ModeloDelPaseo> modelo_;
    QList<qint32> preparadas_;
    QStringList ultimos_;
    int dados_ = 0;
};

}  // namespace padral::pruebas
