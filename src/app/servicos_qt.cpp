#include "app/servicos_qt.h"

#include <QApplication>
#include <QCursor>
#include <QDesktopServices>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QPrintDialog>
#include <QPrinter>
#include <QUrl>

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

bool DialogosQt::ShowPrinter(ConfiguraDialogo& d) {
    QPrinter& impressora = ImpressoraDoPrograma();
    QPrintDialog dialogo(&impressora, dono_);
    dialogo.setWindowTitle(d.Flags & cdlPDPrintSetup ? QStringLiteral("Configurar impressão")
                                                     : QStringLiteral("Imprimir"));
    // No choice of a selection; printing to a file (PDF) stays offered, as
    // on every desktop here.
    dialogo.setOption(QAbstractPrintDialog::PrintSelection, false);
    dialogo.setOption(QAbstractPrintDialog::PrintToFile, true);
    if (dialogo.exec() != QDialog::Accepted) return false;
    d.Copies = impressora.copyCount();
    return true;
}

bool DialogosQt::ShowOpen(ConfiguraDialogo& d) {
    return Mostra(d, false);
}
bool DialogosQt::ShowSave(ConfiguraDialogo& d) {
    return Mostra(d, true);
}

} // namespace tramelo
