// The least that a program of this toolkit can show: what the utility's first window is measured
// against. It is linked to the same libraries and shows its window in the same way, from inside the
// loop.

#include <QApplication>
#include <QDialog>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

int main(int argc, char* argv[]) {
    QApplication application(argc, argv);
    QDialog dialog;
    QVBoxLayout layout(&dialog);
    QLabel label(QStringLiteral("Connect the drive."));
    QPushButton button(QStringLiteral("Quit"));
    layout.addWidget(&label);
    layout.addWidget(&button);
    QMetaObject::invokeMethod(
        &application, [&dialog] { dialog.show(); }, Qt::QueuedConnection);
    return QApplication::exec();
}
