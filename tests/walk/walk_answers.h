#pragma once
// Answers the message boxes of a walk by chance, and looks at their language.

#include <QStringList>
#include <algorithm>

#include "core/message_port.h"
#include "core/text_catalogue.h"
#include "walk/walk_values.h"

namespace padral::pruebas {

class AvisadorDelPaseo : public Avisador {
public:
    explicit AvisadorDelPaseo(Azar& azar) : azar_(azar) {}

    /// Names the other language by the texts that only it has.
    void HablaEuskera(bool euskera) {
        ajenos_.clear();
        const CatalogoTextos catalogo;
        for (int id = 1; id <= UltimoTexto; ++id) {
            const auto texto = [&](bool vasco) {
                const int n = vasco ? id + CatalogoTextos::DesplazamientoEuskera : id;
                return catalogo.Existe(n) ? catalogo.Texto(n).trimmed() : QString();
            };
            const QString ajeno = texto(!euskera);
            if (ajeno.size() >= LargoPropio && !texto(euskera).contains(ajeno)) ajenos_ << ajeno;
        }
    }

    Respuesta Mostrar(const Mensaje& mensaje) override {
        ++Mostrados;
        Ultimo = mensaje.texto;
        if (mensaje.texto.trimmed().isEmpty()) Faltas << QStringLiteral("an empty message");
        const auto habla = [&](const QString& ajeno) { return mensaje.texto.contains(ajeno); };
        if (std::ranges::any_of(ajenos_, habla))
            Faltas << QStringLiteral("a message in the other language: ") + mensaje.texto;
        if (mensaje.botones == Botones::Aceptar) return Respuesta::Aceptar;
        const bool si = azar_.PorCiento(60);
        if (mensaje.botones == Botones::SiNo) return si ? Respuesta::Si : Respuesta::No;
        return si ? Respuesta::Aceptar : Respuesta::Cancelar;
    }

    int Mostrados = 0;
    QString Ultimo;
    QStringList Faltas;

private:
    static constexpr int UltimoTexto = 881;
    /// Shorter ones may be words of both languages.
    static constexpr qsizetype LargoPropio = 12;

    Azar& azar_;
    QStringList ajenos_;
};

}  // namespace padral::pruebas
