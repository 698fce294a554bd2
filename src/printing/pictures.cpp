#include "printing/pictures.h"

#include <algorithm>
#include <iterator>

#include "platform/failure.h"

namespace padral {
namespace {

constexpr Mm MmPorPixel = 25.4F / 96;

constexpr ImagenImpresa imagenes[] = {
    {ImagenEmblema, 64, 54, {nullptr, nullptr}},
    {u"ParaAdministracion", 35, 94, {u"Administrazioarentzat /", u"Para la Administración"}},
    {u"Participe", 23, 140, {u"PARTAIDEA / PARTICIPE", nullptr}},
    {u"DomicilioFiscal", 35, 55, {u"ZERGA HELBIDEA /", u"DOMICILIO FISCAL"}},
    {u"Administracion",
     10,
     247,
     {u"Administrazioarentzako alea / Ejemplar para la Administración", nullptr}},
    {u"Interesado", 10, 213, {u"Aitortzailearentzako alea / Ejemplar para el interesado", nullptr}},
    {u"Borrador", 9, 91, {u"Zirriborroa / Borrador", nullptr}},
    {u"Banco", 17, 295, {u"Bankuarentzako alea / Ejemplar para el banco", nullptr}},
    {u"Informatica", 17, 295, {u"Informatikarako alea / Ejemplar para informática", nullptr}},
};

}  // namespace

Tamano ImagenImpresa::TamanoNatural() const {
    return {static_cast<Mm>(ancho) * MmPorPixel, static_cast<Mm>(alto) * MmPorPixel};
}

const ImagenImpresa& BuscarImagen(QStringView nombre) {
    const auto* fin = std::end(imagenes);
    const auto* hallada = std::find_if(std::begin(imagenes), fin, [&](const ImagenImpresa& i) {
        return nombre == QStringView(i.nombre);
    });
    if (hallada == fin)
        throw Fallo(QStringLiteral("Falta una imagen del impreso (\"%1\").").arg(nombre),
                    QStringLiteral("Inprimakiaren irudi bat falta da (\"%1\").").arg(nombre));
    return *hallada;
}

}  // namespace padral
