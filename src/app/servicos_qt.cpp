#include "app/servicos_qt.h"

#include <QApplication>
#include <QBoxLayout>
#include <QCheckBox>
#include <QComboBox>
#include <QCursor>
#include <QDesktopServices>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QLabel>
#include <QPageSetupDialog>
#include <QPrintDialog>
#include <QPrinter>
#include <QPrinterInfo>
#include <QProcess>
#include <QStandardPaths>
#include <QUrl>
#include <QVBoxLayout>

namespace tramelo {

void SistemaQt::DoEvents() {
    QCoreApplication::processEvents();
}

void SistemaQt::MousePointer(int forma) {
    if (forma == vbHourglass && !ocupado_) {
        QApplication::setOverrideCursor(Qt::WaitCursor);
        ocupado_ = true;
    } else if (forma != vbHourglass && ocupado_) {
        QApplication::restoreOverrideCursor();
        ocupado_ = false;
    }
}

QUrl EnderecoParaUrl(const std::string& caminho) {
    const QString q = QString::fromStdString(caminho);
    // An address with a scheme ("https://...", "mailto:...?Subject=...") goes
    // to the desktop's handler for that scheme; anything else is a file or a
    // folder. A one-letter scheme is a drive ("C:/..."), not an address.
    const QUrl url(q);
    return url.isValid() && url.scheme().size() > 1 ? url : QUrl::fromLocalFile(q);
}

bool SistemaQt::Executa(const std::string& programa, const std::vector<std::string>& argumentos) {
    // The desktop's databases are refreshed in the background: the start
    // doesn't wait for them.
    const QString caminho = QStandardPaths::findExecutable(QString::fromStdString(programa));
    if (caminho.isEmpty()) return true;
    QStringList lista;
    for (const std::string& a : argumentos) lista << QString::fromStdString(a);
    QProcess::startDetached(caminho, lista);
    return true;
}

bool SistemaQt::Abre(const std::string& caminho) {
    return QDesktopServices::openUrl(EnderecoParaUrl(caminho));
}

namespace {

// "Descrição (*.ext)|*.ext|..." as the platform writes a filter, to Qt's
// "Descrição (*.ext);;...".
QString FiltroQt(const std::string& filtro) {
    QStringList partes = QString::fromStdString(filtro).split(QLatin1Char('|'));
    QStringList saida;
    for (int i = 0; i + 1 < partes.size(); i += 2) {
        QString descricao = partes[i];
        if (!descricao.contains(QLatin1Char('(')))
            descricao += QStringLiteral(" (") + partes[i + 1] + QLatin1Char(')');
        saida << descricao;
    }
    return saida.join(QStringLiteral(";;"));
}

} // namespace

bool DialogosQt::Mostra(ConfiguraDialogo& d, bool salvar) {
    QFileDialog dialogo(dono_, QString::fromStdString(d.DialogTitle));
    dialogo.setOption(QFileDialog::DontUseNativeDialog, true);
    dialogo.setAcceptMode(salvar ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
    dialogo.setFileMode(salvar ? QFileDialog::AnyFile : QFileDialog::ExistingFile);
    dialogo.setNameFilter(FiltroQt(d.Filter));
    // No default suffix: a name typed without an extension is kept as typed.
    dialogo.setOption(QFileDialog::DontConfirmOverwrite, !(d.Flags & cdlOFNOverwritePrompt));
    QString pasta = QString::fromStdString(d.InitDir);
    if (!pasta.isEmpty() && QDir(pasta).exists()) dialogo.setDirectory(pasta);
    if (!d.FileName.empty()) dialogo.selectFile(QString::fromStdString(d.FileName));
    if (dialogo.exec() != QDialog::Accepted || dialogo.selectedFiles().isEmpty()) return false;
    d.FileName = dialogo.selectedFiles().constFirst().toStdString();
    return true;
}

QPrinter& ImpressoraDoPrograma() {
    static QPrinter impressora(QPrinter::HighResolution);
    return impressora;
}

namespace {

// The page set-up: the printer, and the paper, orientation and margins the
// next print uses, all kept in the program's printer. Choosing another
// printer opens the set-up again on it, so the papers offered are its own.
// Cancel leaves the printer as it was.
bool ConfiguraPagina(QPrinter& impressora, QWidget* dono) {
    const QString nomeAntes = impressora.printerName();
    const QPrinter::OutputFormat formatoAntes = impressora.outputFormat();
    constexpr int OutraImpressora = 2;
    for (;;) {
        QPageSetupDialog dialogo(&impressora, dono);
        dialogo.setWindowTitle(QStringLiteral("Configurar impressão"));
        auto* linha = new QWidget(&dialogo);
        auto* disposicao = new QHBoxLayout(linha);
        disposicao->setContentsMargins(0, 0, 0, 0);
        disposicao->addWidget(new QLabel(QStringLiteral("Impressora:"), linha));
        auto* lista = new QComboBox(linha);
        lista->setObjectName(QStringLiteral("impressora"));
        for (const QString& nome : QPrinterInfo::availablePrinterNames())
            lista->addItem(nome, nome);
        // An empty name stands for the PDF file a print then asks for.
        lista->addItem(QStringLiteral("Arquivo PDF"), QString());
        const int atual = impressora.outputFormat() == QPrinter::PdfFormat
                              ? lista->count() - 1
                              : lista->findData(impressora.printerName());
        lista->setCurrentIndex(atual < 0 ? 0 : atual);
        disposicao->addWidget(lista, 1);
        if (auto* caixa = qobject_cast<QBoxLayout*>(dialogo.layout()))
            caixa->insertWidget(0, linha);
        QObject::connect(lista, &QComboBox::activated, &dialogo, [&](int i) {
            const QString nome = lista->itemData(i).toString();
            if (nome.isEmpty()) {
                impressora.setOutputFormat(QPrinter::PdfFormat);
            } else {
                impressora.setOutputFormat(QPrinter::NativeFormat);
                impressora.setPrinterName(nome);
            }
            dialogo.done(OutraImpressora);
        });
        const int r = dialogo.exec();
        if (r == OutraImpressora) continue;
        if (r == QDialog::Accepted) return true;
        impressora.setOutputFormat(formatoAntes);
        if (formatoAntes == QPrinter::NativeFormat) impressora.setPrinterName(nomeAntes);
        return false;
    }
}

} // namespace

bool DialogosQt::ShowPrinter(ConfiguraDialogo& d) {
    QPrinter& impressora = ImpressoraDoPrograma();
    if (d.Flags & cdlPDPrintSetup) return ConfiguraPagina(impressora, dono_);
    QPrintDialog dialogo(&impressora, dono_);
    dialogo.setWindowTitle(QStringLiteral("Imprimir"));
    // No choice of a selection; printing to a file (PDF) stays offered, as
    // on every desktop here.
    dialogo.setOption(QAbstractPrintDialog::PrintSelection, false);
    dialogo.setOption(QAbstractPrintDialog::PrintToFile, true);
    // The tab belongs to the dialog, which ends with this call.
    auto* aba = new QWidget(&dialogo);
    aba->setWindowTitle(QStringLiteral("ISO 5167-2"));
    auto* iso = new QCheckBox(
        QStringLiteral("Imprimir a verificação pela ISO 5167-2:2003 como segunda página"), aba);
    iso->setObjectName(QStringLiteral("chkSegundaPaginaIso"));
    iso->setChecked(d.SegundaPaginaIso);
    auto* pilha = new QVBoxLayout(aba);
    pilha->addWidget(iso);
    pilha->addStretch();
    dialogo.setOptionTabs({aba});
    if (dialogo.exec() != QDialog::Accepted) return false;
    d.Copies = impressora.copyCount();
    d.SegundaPaginaIso = iso->isChecked();
    return true;
}

bool DialogosQt::ShowOpen(ConfiguraDialogo& d) {
    return Mostra(d, false);
}
bool DialogosQt::ShowSave(ConfiguraDialogo& d) {
    return Mostra(d, true);
}

} // namespace tramelo
