#include "ui/teams_window.h"
#include "ui/qt_text.h"
#include "ui/season_window_parts.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QPushButton>
#include <QRadioButton>
#include <QRegularExpressionValidator>
#include <QVBoxLayout>

namespace quinteva::ui {
namespace {

QLineEdit* Campo(QWidget* madre, const QString& nombre, int largo) {
    auto* campo = new QLineEdit(madre);
    campo->setObjectName(nombre);
    campo->setMaxLength(largo);
    return campo;
}

}  // namespace

VentanaEquiposQt::VentanaEquiposQt(const std::filesystem::path& carpetaTrabajo,
                                   const std::filesystem::path& carpetaTemporada,
                                   base::Ajustes& ajustes, base::Dialogo& dialogo, QWidget* madre)
    : QDialog(madre),
      dialogo_(dialogo),
      equipos_(carpetaTrabajo, carpetaTemporada, ajustes, dialogo) {
    setObjectName(QStringLiteral("VentanaEquipos"));
    setWindowTitle(QStringLiteral("Equipos"));
    auto* caja = new QVBoxLayout(this);

    auto* arriba = new QHBoxLayout;
    arriba->addWidget(new QLabel(QStringLiteral("Temporada"), this));
    temporada_ = Campo(this, QStringLiteral("CampoTemporada"), 5);
    temporada_->setMaximumWidth(
        temporada_->fontMetrics().horizontalAdvance(QStringLiteral("000000")) + 16);
    temporada_->installEventFilter(this);
    connect(temporada_, &QLineEdit::textEdited, this,
            [this](const QString& texto) { equipos_.EscribirTemporada(S(texto)); });
    arriba->addWidget(temporada_);
    arriba->addSpacing(16);
    anadir_ = new QRadioButton(QStringLiteral("Añadir"), this);
    anadir_->setObjectName(QStringLiteral("ModoAnadir"));
    modificar_ = new QRadioButton(QStringLiteral("Modificar"), this);
    modificar_->setObjectName(QStringLiteral("ModoModificar"));
    arriba->addWidget(anadir_);
    arriba->addWidget(modificar_);
    arriba->addStretch();
    caja->addLayout(arriba);
    connect(anadir_, &QRadioButton::clicked, this,
            [this] { equipos_.ElegirModo(seasons::ModoEquipos::Anadir); });
    connect(modificar_, &QRadioButton::clicked, this,
            [this] { equipos_.ElegirModo(seasons::ModoEquipos::Modificar); });

    auto* divisiones = new QHBoxLayout;
    divisiones->addWidget(CrearDivision(0, QStringLiteral("1ª División")));
    divisiones->addWidget(CrearDivision(1, QStringLiteral("2ª División")));
    caja->addLayout(divisiones, 1);

    auto* botones = new QHBoxLayout;
    const auto boton = [&](const QString& texto, const QString& nombre) {
        auto* b = new QPushButton(texto, this);
        b->setObjectName(nombre);
        b->setAutoDefault(false);
        botones->addWidget(b);
        return b;
    };
    connect(boton(QStringLiteral("&Nueva Temporada"), QStringLiteral("BotonNuevaTemporada")),
            &QPushButton::clicked, this, &VentanaEquiposQt::NuevaTemporada);
    connect(boton(QStringLiteral("&Todo a Cero"), QStringLiteral("BotonTodoACero")),
            &QPushButton::clicked, this, &VentanaEquiposQt::TodoACero);
    botones->addStretch();
    connect(boton(QStringLiteral("&Cerrar"), QStringLiteral("BotonCerrar")), &QPushButton::clicked,
            this, &QDialog::accept);
    caja->addLayout(botones);

    Manejar([this] { equipos_.Abrir(); });
    Refrescar();
    resize(620, 520);
}

QWidget* VentanaEquiposQt::CrearDivision(int division, const QString& titulo) {
    auto* grupo = new QGroupBox(titulo, this);
    auto* rejilla = new QGridLayout(grupo);
    Columna& c = columnas_[static_cast<std::size_t>(division)];
    const QString sufijo = QString::number(division + 1);
    c.numero = Campo(grupo, QStringLiteral("CampoNumero") + sufijo, 2);
    c.numero->setValidator(
        new QRegularExpressionValidator(QRegularExpression(QStringLiteral("[0-9]*")), c.numero));
    c.numero->installEventFilter(this);
    c.lista = new QListWidget(grupo);
    c.lista->setObjectName(QStringLiteral("ListaEquipos") + sufijo);
    c.lista->setContextMenuPolicy(Qt::CustomContextMenu);
    c.nombre = Campo(grupo, QStringLiteral("CampoNombre") + sufijo, 15);
    c.nombre->installEventFilter(this);
    c.valoracion = Campo(grupo, QStringLiteral("CampoValoracion") + sufijo, 3);
    c.valoracion->setValidator(new QRegularExpressionValidator(
        QRegularExpression(QStringLiteral("[0-9]*")), c.valoracion));
    c.valoracion->setToolTip(QStringLiteral("Valoración"));
    c.valoracion->setFixedWidth(
        c.valoracion->fontMetrics().horizontalAdvance(QStringLiteral("0000")) + 16);
    c.valoracion->setVisible(false);
    c.valoracion->installEventFilter(this);
    rejilla->addWidget(new QLabel(QStringLiteral("Nº de Equipos"), grupo), 0, 0);
    rejilla->addWidget(c.numero, 0, 1);
    rejilla->addWidget(c.lista, 1, 0, 1, 3);
    rejilla->addWidget(c.nombre, 2, 0, 1, 2);
    rejilla->addWidget(c.valoracion, 2, 2);
    rejilla->setColumnStretch(1, 1);
    connect(c.lista, &QListWidget::customContextMenuRequested, this,
            [this, division](const QPoint& donde) { MenuDeLista(division, donde); });
    connect(c.numero, &QLineEdit::textEdited, this, [this, division](const QString& texto) {
        equipos_.EscribirNumero(division, S(texto));
    });
    return grupo;
}

template <typename F>
void VentanaEquiposQt::Manejar(F&& mandato) {
    ConAviso(dialogo_, mandato);
    Refrescar();
}

bool VentanaEquiposQt::eventFilter(QObject* objeto, QEvent* evento) {
    for (int d = 0; d < 2; ++d) {
        const Columna& c = columnas_[static_cast<std::size_t>(d)];
        if (objeto == c.numero && evento->type() == QEvent::MouseButtonPress) {
            equipos_.PulsarNumero(d);
        } else if (objeto == c.numero && evento->type() == QEvent::FocusOut) {
            if (!equipos_.SalirDeNumero(d)) c.numero->setFocus();
        } else if ((objeto == c.nombre || objeto == c.valoracion) &&
                   evento->type() == QEvent::KeyPress) {
            const auto* tecla = static_cast<QKeyEvent*>(evento);
            if (tecla->key() == Qt::Key_Return || tecla->key() == Qt::Key_Enter) {
                objeto == c.nombre ? IntroEnNombre(d) : IntroEnValoracion(d);
                return true;
            }
            // Mayúsculas+V en un nombre trae a la vista las valoraciones; la "V" se escribe igual
            // ("Valencia").
            if (objeto == c.nombre && tecla->key() == Qt::Key_V &&
                tecla->modifiers() == Qt::ShiftModifier) {
                for (const Columna& otra : columnas_) otra.valoracion->setVisible(true);
            }
        }
    }
    if (objeto == temporada_ && evento->type() == QEvent::KeyPress) {
        const QString texto = static_cast<QKeyEvent*>(evento)->text();
        if (texto.size() == 1 && texto.at(0).isPrint() &&
            !equipos_.TeclaTemporada(texto.at(0).toLatin1())) {
            return true;
        }
    } else if (objeto == temporada_ && evento->type() == QEvent::FocusOut) {
        equipos_.SalirDeTemporada();
    }
    return QDialog::eventFilter(objeto, evento);
}

void VentanaEquiposQt::MenuDeLista(int division, const QPoint& donde) {
    QListWidget* lista = columnas_[static_cast<std::size_t>(division)].lista;
    QListWidgetItem* fila = lista->itemAt(donde);
    if (fila == nullptr) return;
    const int n = lista->row(fila);
    auto* menu = new QMenu(this);
    menu->setObjectName(QStringLiteral("MenuEquipo"));
    menu->setAttribute(Qt::WA_DeleteOnClose);
    connect(menu->addAction(QStringLiteral("Modificar")), &QAction::triggered, this,
            [this, division, n] {
                Manejar([&] {
                    const auto [nombre, valoracion] = equipos_.ElegirParaModificar(division, n);
                    const Columna& c = columnas_[static_cast<std::size_t>(division)];
                    c.nombre->setText(Q(nombre));
                    c.valoracion->setText(Q(valoracion));
                });
            });
    connect(menu->addAction(QStringLiteral("Eliminar")), &QAction::triggered, this,
            [this, division, n] { Manejar([&] { equipos_.Eliminar(division, n); }); });
    menu->popup(lista->viewport()->mapToGlobal(donde));
}

void VentanaEquiposQt::IntroEnNombre(int division) {
    const Columna& c = columnas_[static_cast<std::size_t>(division)];
    Manejar([&] {
        if (equipos_.IntroEnNombre(division, S(c.nombre->text()), S(c.valoracion->text()))) {
            c.nombre->clear();
        }
    });
    c.lista->scrollToBottom();
}

void VentanaEquiposQt::IntroEnValoracion(int division) {
    const Columna& c = columnas_[static_cast<std::size_t>(division)];
    Manejar([&] {
        if (equipos_.IntroEnValoracion(division, S(c.nombre->text()), S(c.valoracion->text()))) {
            c.nombre->clear();
        }
    });
}

void VentanaEquiposQt::NuevaTemporada() {
    Manejar([this] {
        if (const auto etiqueta = equipos_.NuevaTemporada()) emit temporadaNueva(Q(*etiqueta));
    });
}

void VentanaEquiposQt::TodoACero() {
    Manejar([this] { equipos_.TodoACero(); });
}

void VentanaEquiposQt::Refrescar() {
    const bool soloMirar = equipos_.SoloMirar();
    for (int d = 0; d < 2; ++d) {
        const Columna& c = columnas_[static_cast<std::size_t>(d)];
        const seasons::ListaDivision& division = equipos_.Division(d);
        c.lista->clear();
        for (const auto& nombre : division.equipos) c.lista->addItem(Q(nombre));
        if (c.numero->text() != Q(division.numero)) c.numero->setText(Q(division.numero));
        c.numero->setReadOnly(equipos_.NumeroFijo(d));
        c.nombre->setReadOnly(soloMirar);
    }
    if (temporada_->text() != Q(equipos_.Temporada())) temporada_->setText(Q(equipos_.Temporada()));
    temporada_->setReadOnly(!equipos_.TemporadaEditable());
    anadir_->setEnabled(!soloMirar);
    modificar_->setEnabled(!soloMirar);
    (equipos_.Modo() == seasons::ModoEquipos::Anadir ? anadir_ : modificar_)->setChecked(true);
}

}  // namespace quinteva::ui
