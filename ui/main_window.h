#pragma once

#include <QMainWindow>
#include <QPointer>
#include <QTimer>
#include <array>
#include <filesystem>
#include <functional>
#include <optional>

#include "base/chance.h"
#include "base/dialog.h"
#include "base/settings.h"
#include "builders/adjustment.h"
#include "builders/boletos.h"
#include "builders/team_weights.h"
#include "engine/combination.h"
#include "engine/generation.h"
#include "seasons/startup.h"
#include "ui/background_work.h"
#include "ui/cross_thread_dialog.h"
#include "ui/network_flow.h"
#include "ui/print_window_base.h"
#include "ui/printing.h"
#include "ui/reduction_seam.h"
#include "ui/very_reduced_window.h"

class QAction;
class QDialog;
class QLabel;
class QMenu;
class QPushButton;
class QStackedWidget;
class QToolBar;

namespace quinteva::ui {

class PaginaBase;
class PaginaCondiciones;
class PaginaGenerar;
class PaginaReducir;
class PaginaBoletos;
class PanelEstadoQt;
class VentanaPorcentajes;
class VentanaRapidaBasica;

// Lo que la ventana principal toma del programa: la carpeta de trabajo, la del programa (la de su
// ejecutable), la de los datos que trae (la temporada de demostración), los ajustes, el Dialogo
// por el que habla con el usuario y la reducción (sin ella la página "Reducir" no reduce).
struct Servicios {
    std::filesystem::path carpetaTrabajo;
    std::filesystem::path carpetaPrograma;
    std::filesystem::path carpetaDatos;
    base::Ajustes& ajustes;
    base::Dialogo& dialogo;
    Reductor* reductor = nullptr;
    // Cómo se imprime; sin nada, en la impresora del ajuste "Impresora".
    Imprimir imprimir;
};

// Las páginas, en el orden del trabajo.
enum Pagina : int { kQuinBase = 0, kCondicion = 1, kGenerar = 2, kReducir = 3, kBoletos = 4 };

// La ventana principal: dueña de la Combinación abierta; sus cinco botones llevan por las páginas
// y sus menús y su barra abren las demás ventanas.
class VentanaPrincipal : public QMainWindow {
    Q_OBJECT

  public:
    explicit VentanaPrincipal(Servicios servicios, QWidget* madre = nullptr);
    ~VentanaPrincipal() override;

    // Los pasos del arranque tras la carpeta de trabajo: temporada (la de demostración en el
    // primer arranque), archivos descargados, equipos, MaxJornada, la lista de Jornadas, las
    // rejillas, los recientes y, al final, el ".uxd" dado como argumento.
    void Arrancar(const std::optional<std::filesystem::path>& argumento = std::nullopt);
    // Tras mostrarse: la ventana de bienvenida si "VerBien" es "SI".
    void Bienvenida();

    const engine::Combinacion& Combinacion() const { return comb_; }
    const seasons::TemporadaPreparada& Temporada() const { return temporada_; }
    TrabajoEnSegundoPlano& Trabajo() { return trabajo_; }
    void IrAPagina(int pagina);
    int PaginaActual() const;
    bool PaginaHabilitada(int pagina) const {
        return habilitada_[static_cast<std::size_t>(pagina)];
    }

    // Los mandatos, como los llaman los menús y la barra.
    void ElegirJornada(int jornada);
    void Nueva();
    void AbrirArchivo();
    void AbrirReciente(int n);
    bool Guardar();
    bool GuardarComo();
    void CopiarCondiciones();
    void Opciones();
    // "&Equipos": la ventana de los equipos y las temporadas.
    void Equipos();
    // "&Clasificaciones": la tabla de cada división.
    void Clasificaciones();
    // "Jornadas &Liga": el calendario de cada Jornada.
    void JornadasLiga();
    // "De Jornadas de &Liga": los goles de cada partido.
    void ResultadosLiga();
    // "Jornadas &Quiniela": el boleto de cada Jornada.
    void JornadasQuiniela();
    // "De Jornadas de &Quinielas": la columna ganadora de cada Jornada.
    void ResultadosQuiniela();
    // "&Quinielas": las columnas que se juegan de la Combinación guardada, una a una.
    void VerQuinielas();
    // "&Estadísticas" y "&Columnas Ganadoras": lo que dicen las columnas de "Jornadas.rar".
    void Estadisticas();
    void ColumnasGanadoras();
    // "&Histórico de Resultados": los partidos de "Hist.rar".
    void HistoricoDeResultados();
    // "Actualización por Internet" (los archivos de la temporada) y "&Actualización del programa".
    void ActualizacionPorInternet();
    void ActualizacionDelPrograma();
    void AcercaDe();

    // La página Boletos: el conjunto que se juega, el ajuste y los mandatos de salida.
    void ElegirJuego(builders::Jugada jugada);
    void Ajustar();
    void ArchivoOficial();
    void ArchivoTxt();
    // "Imprimir en Boletos" e "Imprimir en papel blanco" del conjunto que se juega, y la impresora.
    void ImprimirEnBoletos();
    void ImprimirEnPapel();
    void SeleccionarImpresora();
    // "&Resumen de Condiciones": "Quinteva [Condiciones]", el informe de la base y las
    // condiciones con su vista previa.
    void ResumenDeCondiciones();
    // "Visor de Quinielas": el informe de las columnas que se juegan, con su vista previa.
    void VisorDeQuinielas();
    // "Quiniela muy reducida": la ventana junto a la base y su "Generar" de un paso (generar,
    // reducir al nivel elegido, guardar y pasar a Boletos con las reducidas).
    void AbrirMuyReducida();
    void MuyReducida(int nivel);
    // "Quiniela por Porcentajes": la ventana de los porcentajes y su "&Generar" (repartir,
    // guardar y pasar a Boletos con las columnas generadas).
    void AbrirPorcentajes();
    // "Generar Quin. Básica": la ventana de los límites opcionales y su "&Generar" (condiciones,
    // generar, guardar y ajustar al número pedido).
    void AbrirRapidaBasica();
    // "&Peñas": "&Crear nueva Peña...", "&Abrir Peña..." y la última que se abrió.
    void CrearPena();
    void AbrirPenaDeArchivo();
    void AbrirUltimaPena();
    // La ventana de la Peña (su ruta sin extensión), que queda como la última.
    void AbrirPena(const std::filesystem::path& ruta);
    // "&Refundir Combinaciones": varias Combinaciones guardadas a un archivo de texto.
    void RefundirCombinaciones();
    // "Importar &archivo": listas de columnas hechas fuera, impresas o en archivo oficial.
    void ImportarArchivo();
    void EliminarManual();
    void AnadirManual();
    // "Quinteva [Listado de Apuestas]" de las Condicionadas o de las Reducidas.
    void Listado(bool condicionadas);
    // "&Leer o modificar archivo JSON".
    void ArchivoJson();
    // "&Probabilidades" de la página Boletos: las de cada premio del conjunto que se juega.
    void ProbabilidadesJugadas();
    // "Comprobación de &Aciertos" sobre la Jornada que se muestra y "Análisis de Datos".
    void ComprobarAciertos();
    void AnalisisDeDatos();

  protected:
    void closeEvent(QCloseEvent* evento) override;

  private:
    void CrearPaginas();
    void CrearMenus();
    void CrearBarra();
    QAction* Accion(QMenu* menu, const QString& texto, const QString& nombre,
                    bool habilitada = true);
    // Una ventana auxiliar: modal sobre la principal, sin bucle de eventos propio, junto a ella
    // (4800 twips a la derecha de su borde y 600 bajo su menú), y se borra al cerrarse.
    void AbrirVentana(QDialog* ventana);

    // Ante lo que borraría el trabajo sin guardar: "Desea guardar la Quiniela actual?". false si
    // el usuario cancela (o no llega a guardar).
    bool PreguntarGuardar();
    void Abrir(const std::filesystem::path& ruta, int reciente);
    void LimpiarCombinacion(bool vaciarRuta);
    void PonerPartidos(int jornada);
    // Tras guardar en las ventanas de la temporada: la lista de Jornadas y los partidos de la
    // Quiniela Base vuelven a leerse de los archivos.
    void SeguirArchivosDeTemporada();
    // "Nueva Temporada" en "Equipos": la principal pasa a la temporada nueva, como al arrancar.
    void TemporadaNueva(const QString& etiqueta);
    void Fallo(const std::exception& e);
    // "&Guardar..." y "G&uardar como" del motor, con el refresco y el manejo de errores comunes.
    using FlujoDeGuardar = bool (*)(engine::Combinacion&, const std::filesystem::path&,
                                    const std::filesystem::path&, base::Ajustes&, base::Dialogo&);
    bool GuardarCon(FlujoDeGuardar flujo);

    void SignoPulsado(int partido, int signo);
    void GolTecleado(int lado, const QString& tecla);
    void GolVisitado(int lado);
    void PartidoElegido(int fila);
    void CambioCondiciones();
    void PorcentajesAutomaticos();
    void AnularResultados();
    void QuinComp(const engine::QuinielaBase& anterior);

    void Generar();
    void FinGeneracion();
    void Reducir();
    void FinReduccion();
    void Detener();
    void RefrescarProgreso();
    void Ocupado(bool ocupado);
    void AvisoBoletos();
    void Rechazadas();
    void TablaReducciones();
    void InfoReduccion();
    // "&Histórico de condiciones" de la página de condiciones.
    void HistoricoCondiciones();
    void SeleccionPulsada(int fila);

    void ConectarBoletos();
    builders::EntornoBoletos Entorno();
    // El del trabajo en segundo plano: pregunta por el hilo de la ventana.
    builders::EntornoBoletos EntornoDelHilo();
    // Sin nombre: "Por favor guarde antes la combinación" y "G&uardar como". true si hay nombre.
    bool ExigirNombre();
    // alAzarSiVuelveSin: si la ventana se cierra sin añadir, una columna al azar.
    void AbrirAnadir(bool alAzarSiVuelveSin);
    void FinAjuste();
    // El año de la fecha de la Jornada que se muestra ("dd/MM/yy"); el actual si no hay.
    int AnioDeLaJornada() const;
    // Las columnas activas del conjunto que se juega, guardado, y la fecha de su Jornada.
    std::optional<ColumnasAImprimir> ColumnasJugadas();
    // "Jornada " & número & ", " & fecha, la línea de los listados impresos.
    std::string LineaJornada() const;
    void RefrescarPaginaBoletos();

    void Habilitar(int pagina, bool habilitada);
    void Refrescar();
    void RefrescarPaginaGenerar();
    void RefrescarPaginaReducir();
    void RefrescarRecientes();

    Servicios s_;
    engine::Combinacion comb_;
    seasons::TemporadaPreparada temporada_;
    std::array<int, 15> divisiones_{};
    std::array<bool, 5> habilitada_{true, false, false, false, false};
    std::array<bool, engine::kPartidos> seleccionReduccion_{};

    std::array<QPushButton*, 5> botonesPagina_{};
    QStackedWidget* paginas_ = nullptr;
    PanelEstadoQt* panel_ = nullptr;
    PaginaBase* base_ = nullptr;
    PaginaCondiciones* condiciones_ = nullptr;
    PaginaGenerar* generar_ = nullptr;
    PaginaReducir* reducir_ = nullptr;
    PaginaBoletos* boletos_ = nullptr;
    QLabel* temporadaEtiqueta_ = nullptr;
    QToolBar* barra_ = nullptr;

    QAction* guardar_ = nullptr;
    QAction* guardarComo_ = nullptr;
    QAction* copiar_ = nullptr;
    std::array<QAction*, 3> recientes_{};
    QAction* ultimaPena_ = nullptr;
    QAction* listadoCondicionadas_ = nullptr;
    QAction* listadoReducidas_ = nullptr;
    QAction* listadoJugado_ = nullptr;
    QAction* visorQuinielas_ = nullptr;
    QAction* comprobarAciertos_ = nullptr;

    TrabajoEnSegundoPlano trabajo_;
    QTimer refresco_;
    QTimer temporizadorVersion_;
    // La comprobación de versión del arranque; solo existe si hay servidor.
    FlujoDeRed* comprobacionVersion_ = nullptr;
    void ComprobarVersion();
    // Tras una actualización por Internet: los equipos y las Jornadas de los archivos nuevos.
    void RecargarTemporada();
    bool reduciendo_ = false;
    bool ajustando_ = false;
    builders::Ajuste ajuste_;
    base::AzarEstandar azar_{base::AzarEstandar::SemillaDelReloj()};
    // PesoLocal y PesoVisitante de "Ponderar equipos": duran lo que el programa.
    builders::PesosEquipos pesos_;
    QPointer<VentanaMuyReducida> muyReducida_;
    // El paso siguiente de un asistente cuando acaba el trabajo en curso (generar, reducir,
    // ajustar), con false si se detuvo, falló o no llegó a empezar.
    std::function<void(bool)> alAcabar_;
    void SeguirAsistente(bool seguir);
    void PasoDeAsistente(void (VentanaPrincipal::*paso)(), std::function<void(bool)> despues);
    void PorPorcentajes(VentanaPorcentajes* ventana);
    void RapidaBasica(VentanaRapidaBasica* ventana);
    // Tras generar: la pregunta si hay menos de las pedidas, y el ajuste. false si no sigue.
    bool BasicaGenerada(const QPointer<VentanaRapidaBasica>& ventana, std::int32_t pedidas);
    DialogoEntreHilos dialogoDelHilo_{s_.dialogo, this};
    QString fechaJornada_;
    bool verContador_ = true;
    bool verBarra_ = true;
    engine::ResultadoGeneracion resultado_;
    // Lo que la reducción pide mostrar al acabar (la "Reducción optimizada", lo que ahorra).
    std::string avisoReduccion_;
};

}  // namespace quinteva::ui
