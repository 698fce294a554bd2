#pragma once
// One run of the program in one language, as a user would go through it.

#include <QString>
#include <memory>
#include <vector>

#include "app/program.h"
#include "app/tour/guide.h"
#include "app/tour/visit_ports.h"
#include "printing/ui/printer_factory.h"
#include "ui/message_box.h"

namespace padral {

/// The splash shows as long as it takes to photograph it.
class RelojVisita : public RelojSistema {
public:
    std::function<void()> alEsperar;
    void Esperar(int) override {
        RelojSistema::Esperar(50);
        if (alEsperar) alEsperar();
    }
};

class Visita {
public:
    /// `idioma` is "es" or "eu"; pictures and documents go to the folder `salida`. Throws
    /// GuiaPerdida.
    Visita(const QString& salida, const QString& idioma);

    /// Throws GuiaPerdida when program and script differ.
    void Recorrer();

private:
    void arrancar();
    void foto(const QString& nombre) { guia_->Foto(idioma_ + u'-' + nombre); }
    void escribir(const std::vector<std::pair<const char*, const char16_t*>>& campos);
    void pulsar(std::initializer_list<const char*> controles);
    /// Ticks boxes of section 5 by their numbers.
    void responder(std::initializer_list<int> casillas);
    void nueva();
    void identificar(const QString& nif, const QString& nombre, const QString& referencia);
    QString fecha(const QString& dia, const QString& mes, const QString& anyo) const {
        return idioma_ == QStringLiteral("es") ? dia + mes + anyo : anyo + mes + dia;
    }
    void buscar();
    void imprimirEmpresa();
    /// Finds a declaration by the start of its name and prints both copies.
    void imprimir(const QString& nombre);

    // A company that changes, in visit_company.cpp.
    void declararEmpresa();
    void identificarEmpresa();
    void declararDomicilios();
    void declararDatos();
    void declararSolicitudes();
    void declararSituacion();
    void declararIntracomunitarias();

    // The other declarants, in visit_others.cpp.
    void declararPersona();
    void declararActividad();
    void mirarEdicionesAnteriores();
    void declararCese();
    void declararComunidad();
    void participar(const std::vector<std::pair<const char*, const char16_t*>>& campos);
    void declararNoResidente();

    // The menu of utilities, in visit_utilities.cpp.
    void mirarVersiones();
    void consultarVersion(const QString& dialogo, const QString& nombre);
    void copiarYRestaurar();

    QString salida_, idioma_;
    AvisadorPantalla avisador_;
    RelojVisita reloj_;
    FabricaQt impresora_{reloj_};
    DescargaVisita descarga_;
    NavegadorVisita navegador_;
    EleccionesVisita elecciones_;
    std::unique_ptr<Programa> programa_;
    std::unique_ptr<Guia> guia_;
};

}  // namespace padral
