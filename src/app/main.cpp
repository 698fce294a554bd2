// The program itself: makes the real ports and starts.

#include <cstdlib>

#include "app/application.h"
#include "app/program.h"
#include "online/backup/screen_dialogs.h"
#include "platform/net/http_download.h"
#include "platform/program_folder.h"
#include "printing/ui/printer_factory.h"
#include "ui/message_box.h"

int main(int argc, char** argv) {
    using namespace padral;
    Aplicacion aplicacion(argc, argv);
    AvisadorPantalla avisador;
    RelojSistema reloj;
    FabricaQt impresora(reloj);
    DescargaHttp descarga;
    NavegadorSistema navegador;
    DialogosPantalla dialogosCopia;
    const PuertosUtilidades utilidades{&descarga, &navegador, &dialogosCopia,
                                       [] { std::_Exit(EXIT_SUCCESS); }};
    aplicacion.alFallar = [&avisador](const QString& castellano, const QString& euskera) {
        avisador.Mostrar({castellano + QStringLiteral("\n\n") + euskera,
                          QStringLiteral("Declaración Padral"), Icono::Error, Botones::Aceptar});
    };
    int estado = 0;
    aplicacion.Proteger([&] {
        Programa programa({avisador, reloj, impresora, nullptr, utilidades}, CarpetaEjecutable(),
                          CarpetaPrograma());
        avisador.finEspera = [&] { programa.ventana().CursorEspera(false); };
        dialogosCopia.finEspera = avisador.finEspera;
        avisador.esEuskera = [&] { return programa.estado().DesplazamientoIdioma != 0; };
        aplicacion.alFallar = [&](const QString& castellano, const QString& euskera) {
            MostrarFallo(programa.estado(), programa.IdiomaConocido(), castellano, euskera);
        };
        // Inside the handler: the objects that show a failure still live when it is caught.
        bool seguir = false;
        aplicacion.Proteger([&] { seguir = programa.Iniciar(); });
        if (!seguir) return;
        aplicacion.Proteger([&] { programa.MostrarVentana(); });
        estado = QApplication::exec();
    });
    return estado;
}
