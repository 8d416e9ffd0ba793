// What the utility's first window is measured against. Linked to the same libraries, and shown in
// the same way, from inside the loop, is
//
//   bare_dialog         the least that a program of this toolkit can show, a word and a button
//   bare_dialog same    what that window shows, with the toolkit's own controls and nothing behind

#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include <string_view>

namespace {

void fillWithLeast(QDialog& dialog) {
    auto* const layout = new QVBoxLayout(&dialog);
    layout->addWidget(new QLabel(QStringLiteral("Connect the drive.")));
    layout->addWidget(new QPushButton(QStringLiteral("Quit")));
}

QLabel* heading() {
    auto* const label = new QLabel(QStringLiteral("Which drive do you want to use?"));
    QFont font = label->font();
    font.setBold(true);
    font.setPointSizeF(font.pointSizeF() * 1.2);
    label->setFont(font);
    label->setWordWrap(true);
    return label;
}

void fillWithTheSame(QDialog& dialog) {
    const QString said = QStringLiteral(
        "No ZELTO DISK is ready for use. Plug it in, then start this program again.");
    dialog.setWindowTitle(QStringLiteral("ZELTO DISK"));
    QIcon icon;
    for (const int size : {16, 24, 32, 48, 64}) {
        icon.addPixmap(QPixmap(QStringLiteral(ZELTO_ICONS "/zelto-%1.png").arg(size)));
    }
    dialog.setWindowIcon(icon);

    auto* const layout = new QVBoxLayout(&dialog);
    auto* const head = new QHBoxLayout;
    auto* const picture = new QLabel;
    picture->setPixmap(icon.pixmap(48));
    head->addWidget(picture);
    auto* const texts = new QVBoxLayout;
    texts->addWidget(heading());
    auto* const text = new QLabel(said);
    text->setWordWrap(true);
    texts->addWidget(text);
    head->addLayout(texts, 1);
    layout->addLayout(head);

    auto* const choice = new QHBoxLayout;
    choice->addWidget(new QLabel(QStringLiteral("Drive:")));
    auto* const list = new QComboBox;
    list->addItem(said);
    list->setEnabled(false);
    choice->addWidget(list, 1);
    choice->addWidget(new QPushButton(QStringLiteral("Look Again")));
    layout->addLayout(choice);

    auto* const buttons = new QHBoxLayout;
    buttons->addWidget(new QPushButton(QStringLiteral("Help")));
    buttons->addStretch();
    buttons->addWidget(new QPushButton(QStringLiteral("Cancel")));
    auto* const ok = new QPushButton(QStringLiteral("OK"));
    ok->setEnabled(false);
    buttons->addWidget(ok);
    layout->addLayout(buttons);
}

} // namespace

int main(int argc, char* argv[]) {
    QApplication application(argc, argv);
    QDialog dialog;
    if (argc == 2 && std::string_view(argv[1]) == "same") {
        fillWithTheSame(dialog);
    } else {
        fillWithLeast(dialog);
    }
    QMetaObject::invokeMethod(
        &application, [&dialog] { dialog.show(); }, Qt::QueuedConnection);
    return QApplication::exec();
}
