// Each wish by way of Qt; whatever opens a box runs inside Shell::modally.
#include "qt/qt_desktop.h"

#include <QClipboard>
#include <QCoreApplication>
#include <QCursor>
#include <QGuiApplication>
#include <QProcess>
#include <QTime>
#include <QUrl>
#include <chrono>
#include <utility>

#include "core/texts.h"
#include "qt/boxes/popup_menu.h"
#include "qt/paint/picture_loader.h"
#include "qt/system/platform.h"
#include "qt/windows/page_window.h"
#include "qt/windows/qt_values.h"

namespace quillor {

namespace {

constexpr Font kBoxFont{Face::Plain, 12, false};
constexpr Font kButtonFont{Face::Display, 12, true};

std::uint64_t clockReading() {
    return static_cast<std::uint64_t>(std::chrono::system_clock::now().time_since_epoch().count());
}

// The bottom left corner of a control's widget.
QPoint below(const Page& page, const Control& control) {
    QWidget& place = page.view(control)->widget();
    return place.mapToGlobal(QPoint(0, place.height()));
}

// The middle of the focused control, for a menu that was asked for by key.
QPoint focusPoint(const Page& page) {
    const QWidget* focus = page.focusWidget();
    const QWidget& place = focus ? *focus : page;
    return place.mapToGlobal(place.rect().center());
}

}  // namespace

QtDesktop::QtDesktop(Shell& shell, std::unique_ptr<SoundPlayer> player)
    : shell_(shell), player_(std::move(player)), random_(clockReading()) {}

void QtDesktop::attach(Program& program) {
    program_ = &program;
    shell_.onIdle = [&program] { program.destroyClosed(); };
}

QString QtDesktop::lang(const TextPair& pair) const {
    return toQt(program_->lang(pair));
}

BoxStyle QtDesktop::boxStyle() const {
    BoxStyle style;
    Page* page = shell_.front();
    style.parent = page ? &page->pageWindow() : nullptr;
    style.low = page != nullptr && !page->pageWindow().isDialog();
    const double scale = page ? page->scale().pixels : TwipScale().pixels;
    style.font = shell_.fonts.font(kBoxFont, scale);
    style.buttonFont = shell_.fonts.font(kButtonFont, scale);
    style.accent = program_->settings.glTheme;
    style.scheme = shell_.scheme;
    style.ringShown = shell_.showsFocus;
    return style;
}

void QtDesktop::messageBox(MessageIcon icon, TextView text) {
    shell_.modally([&] {
        const bool critical = icon == MessageIcon::Critical;
        showMessage(boxStyle(), critical ? BoxSign::Critical : BoxSign::Information, toQt(text),
                    lang(texts::kAccept));
    });
}

bool QtDesktop::question(TextView text, bool yesLoses) {
    return shell_.modally([&] {
        return askQuestion(boxStyle(), toQt(text), lang(texts::kYes), lang(texts::kNo), yesLoses);
    });
}

Text QtDesktop::inputBox(TextView prompt) {
    return shell_.modally([&] {
        return fromQt(
            askText(boxStyle(), toQt(prompt), lang(texts::kAccept), lang(texts::kCancel)));
    });
}

void QtDesktop::aboutBox(TextView title, TextView text) {
    shell_.modally([&] {
        const BoxStyle style = boxStyle();
        if (!platform::showSystemAbout(style.parent, toQt(title), toQt(text)))
            showAbout(style, toQt(title), toQt(text), lang(texts::kAccept));
    });
}

Text QtDesktop::clipboard() {
    return fromQt(QGuiApplication::clipboard()->text());
}

void QtDesktop::setClipboard(TextView text) {
    QGuiApplication::clipboard()->setText(toQt(text));
}

bool QtDesktop::fontPresent(TextView name) {
    return shell_.fonts.present(name);
}

ImageRef QtDesktop::loadPicture(const Place& file) {
    return loadPictureFile(file);
}

void QtDesktop::open(const std::filesystem::path& file) {
    platform::openFile(file);
}

void QtDesktop::openAddress(TextView page, TextView sought) {
    platform::openEncodedAddress(encodedAddress(page, sought));
}

std::span<const std::byte> QtDesktop::sound(int id) {
    return platform::carriedSound(id);
}

void QtDesktop::playWave(std::span<const std::byte> image) {
    shell_.showNow();
    // No event is delivered meanwhile, and what moves goes on all the same.
    player_->play(image, [this] { shell_.paintMotions(); });
}

TimeOfDay QtDesktop::timeOfDay() {
    const QTime now = QTime::currentTime();
    return {now.hour(), now.minute(), now.second()};
}

double QtDesktop::random() {
    return random_.next();
}

void QtDesktop::seedRandom() {
    random_.reseed(clockReading());
}

void QtDesktop::show(Screen& screen) {
    shell_.show(screen);
}

void QtDesktop::close(Screen& screen) {
    shell_.close(screen);
}

void QtDesktop::popUp(Screen& screen, MenuItem& menu, const Control* under) {
    Page* page = shell_.find(&screen);
    if (!page)
        return;
    const QPoint at = under                 ? below(*page, *under)
                      : shell_.isKeyEvent() ? focusPoint(*page)
                                            : QCursor::pos();
    BoxStyle style = boxStyle();
    style.parent = &page->pageWindow();
    const bool byKey = shell_.isKeyEvent();
    MenuItem* chosen = shell_.modally([&] { return choosePopUp(style, menu, at, byKey); });
    if (chosen && shell_.isOpen(screen))
        screen.choose(*chosen);
}

bool QtDesktop::isFullScreen() const {
    return shell_.isFullScreen();
}

void QtDesktop::setFullScreen(bool on) {
    shell_.setFullScreen(on);
}

void QtDesktop::startProgram() {
    if (beforeRestart)
        beforeRestart();
    QProcess::startDetached(QCoreApplication::applicationFilePath(),
                            QCoreApplication::arguments().mid(1));
}

void QtDesktop::end() {
    shell_.end();
}

// All signs of the phrase are encoded but those that mean nothing in any part of an address,
// and that leads to no other page: dots between slashes would go up, and dots alone.
QString encodedAddress(TextView page, TextView sought) {
    QByteArray encoded = QUrl::toPercentEncoding(toQt(sought), ":,;@!$'()*");
    if (encoded == "." || encoded == "..")
        encoded += "%20";
    return toQt(page) + QString::fromLatin1(encoded);
}

}  // namespace quillor
