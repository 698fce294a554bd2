#include "store/catalogue_lookups.h"

#include <algorithm>

#include "store/catalogue_sql.h"
#include "store/general_server.h"

namespace padral {

using SvrDPadral::cGeneral;

namespace {

constexpr qint32 FormaJuridicaOtras = 90;

template <class Resultado>
using Operacion = void (cGeneral::*)(const QString&, Resultado&) const;

// A server object lives for one call.
template <class Resultado>
Resultado consultar(const QString& ruta, Operacion<Resultado> operacion, const QString& sql) {
    cGeneral servidor;
    servidor.mdbnameread = ruta;
    Resultado resultado;
    (servidor.*operacion)(sql, resultado);
    return resultado;
}

// Of digits alone: a sign or a blank is nothing that a code has.
bool esNumerica(const QString& clave) {
    return !clave.isEmpty() && std::all_of(clave.cbegin(), clave.cend(),
                                           [](QChar c) { return c >= u'0' && c <= u'9'; });
}

QString sinCerosDelante(const QString& numero) {
    qsizetype ceros = 0;
    while (ceros < numero.size() - 1 && numero[ceros] == u'0') ++ceros;
    return numero.mid(ceros);
}

}  // namespace

QString ConsultasCatalogo::texto(const sql::Consulta& consulta, const QString& clave) const {
    const QStringView comienzo = desplazamiento_ == 0 ? consulta.castellano : consulta.euskera;
    return comienzo.toString() + clave + consulta.final.toString();
}

QString ConsultasCatalogo::ObtenerCodigoEpigrafe(const QString& descripcion) const {
    return consultar(ruta_, &cGeneral::ObtenerCodigoEpigrafe,
                     texto(sql::CodigoEpigrafe, descripcion));
}

QString ConsultasCatalogo::ObtenerDescripcionEpigrafe(const QString& codigo) const {
    return consultar(ruta_, &cGeneral::ObtenerDescripcionEpigrafe,
                     texto(sql::DescripcionEpigrafe, codigo));
}

QString ConsultasCatalogo::ObtenerDescActivEcon(const QString& codigo) const {
    return consultar(ruta_, &cGeneral::ObtenerDescActivEcon, texto(sql::DescActivEcon, codigo));
}

QString ConsultasCatalogo::ObtenerCodigoFormaJuridica(const QString& descripcion) const {
    return consultar(ruta_, &cGeneral::ObtenerCodigoFormaJuridica,
                     texto(sql::CodigoFormaJuridica, descripcion));
}

QString ConsultasCatalogo::ObtenerDescFormaJuridica(qint32 codigo) const {
    return consultar(ruta_, &cGeneral::ObtenerDescFormaJuridica,
                     texto(sql::DescFormaJuridica, QString::number(codigo)));
}

QString ConsultasCatalogo::ObtenerNombreProvincia(qint32 codigo) const {
    return consultar(ruta_, &cGeneral::ObtenerNombreProvincia,
                     texto(sql::NombreProvincia, QString::number(codigo)));
}

QString ConsultasCatalogo::ObtenerDescripcionSiglas(const QString& codigo) const {
    return consultar(ruta_, &cGeneral::ObtenerDescripcionSiglas,
                     texto(sql::DescripcionSiglas, codigo));
}

QString ConsultasCatalogo::ObtenerCodigoCausa(const QString& descripcion) const {
    return consultar(ruta_, &cGeneral::ObtenerCodigoCausa, texto(sql::CodigoCausa, descripcion));
}

QString ConsultasCatalogo::ObtenerCausaCese(const QString& codigo) const {
    return consultar(ruta_, &cGeneral::ObtenerCausaCese, texto(sql::CausaCese, codigo));
}

QString ConsultasCatalogo::NombreMunicipio(qint32 codigo) const {
    const Tabla filas = consultar(ruta_, &cGeneral::CargarMunicipio,
                                  texto(sql::Municipio, QString::number(codigo)));
    return filas.Filas() == 0 ? QStringLiteral("") : filas(0, 0).toString();
}

Tabla ConsultasCatalogo::ListaSiglas() const {
    return consultar(ruta_, &cGeneral::CargarResultado, texto(sql::ListaSiglas));
}

Tabla ConsultasCatalogo::ListaProvincias() const {
    return consultar(ruta_, &cGeneral::CargarResultado, texto(sql::ListaProvincias));
}

Tabla ConsultasCatalogo::ListaMunicipios() const {
    return consultar(ruta_, &cGeneral::CargarResultado, texto(sql::ListaMunicipios));
}

QStringList ConsultasCatalogo::Epigrafes() const {
    return consultar(ruta_, &cGeneral::ObtenerEpigrafe, texto(sql::Epigrafes));
}

QStringList ConsultasCatalogo::EpigrafeSinActividad() const {
    return consultar(ruta_, &cGeneral::ObtenerEpigrafe, texto(sql::EpigrafeSinActividad));
}

Tabla ConsultasCatalogo::FormasJuridicas() const {
    return consultar(ruta_, &cGeneral::ObtenerFormaJuridica, texto(sql::FormasJuridicas));
}

QStringList ConsultasCatalogo::MotivosCambio() const {
    return consultar(ruta_, &cGeneral::ObtenerMotivoCambio, texto(sql::MotivosCambio));
}

QStringList ConsultasCatalogo::CausasCese() const {
    return consultar(ruta_, &cGeneral::ObtenerDescriCese, texto(sql::CausasCese));
}

QString BuscarListItem(const Tabla& lista, const QString& clave) {
    const QString buscada = esNumerica(clave) ? u'c' + sinCerosDelante(clave) : clave;
    for (int fila = 0; fila < lista.Filas(); ++fila)
        if (lista(0, fila).toString().compare(buscada, Qt::CaseInsensitive) == 0)
            return lista(1, fila).toString();
    return QStringLiteral("");
}

int SeleccionarComboPorCodigo(const QString& codigo, const QStringList& items) {
    if (codigo.isEmpty()) return -1;
    const QString buscado = codigo.toUpper();
    for (qsizetype i = 0; i < items.size(); ++i)
        if (items[i].left(2) == buscado) return static_cast<int>(i);
    return -1;
}

QStringList OrdenFormasJuridicas(const Tabla& tabla, const QString& anagrama, qint32 codigoForma) {
    constexpr int Descripcion = 2;
    QStringList orden;
    if (tabla.Filas() > 0) orden.append(tabla(Descripcion, tabla.UltimaFila()).toString());
    for (int fila = 0; fila < tabla.UltimaFila(); ++fila)
        orden.append(tabla(Descripcion, fila).toString());
    if (!anagrama.isEmpty() && codigoForma == FormaJuridicaOtras) orden.append(anagrama);
    return orden;
}

}  // namespace padral
