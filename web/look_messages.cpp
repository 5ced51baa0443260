#include "web/look_messages.h"

#include "core/text_rules.h"
#include "toolkit/style.h"

namespace quillor {

namespace {

const char* faceName(Face face) {
    switch (face) {
        case Face::Display:
            return "display";
        case Face::Comic:
            return "comic";
        case Face::Webdings:
            return "web";
        case Face::Wingdings:
            return "wing";
        case Face::Plain:
            break;
    }
    return "plain";
}

void tellFont(Messages& out, const Font& font) {
    out.key("face").word(faceName(font.face));
    out.key("size").number(static_cast<double>(font.size));
    out.key("bold").flag(font.bold);
}

// Where the letter stands in the plain caption that the single "&" marks; -1: nowhere.
int accessPlace(const ShownLabel& label) {
    if (label.literal)
        return -1;
    int place = 0;
    for (std::size_t i = 0; i + 1 < label.caption.size(); ++i, ++place) {
        if (label.caption[i] != u'&')
            continue;
        if (label.caption[i + 1] != u'&')
            return place;
        ++i;
    }
    return -1;
}

void tellEdge(Messages& out, const Inked& inked) {
    const Edge edge = inked.enabled ? inked.edge() : Edge{};
    out.key("ink").color(inked.ink);
    out.key("edge").color(edge.color);
    out.key("share").number(edge.share);
}

struct LookTeller {
    Messages& out;
    const ShownControl& shown;
    const Inked& inked;
    const Scheme& scheme;

    void operator()(const Label*) const {
        const auto& look = std::get<ShownLabel>(shown.look);
        out.key("caption").text(
            replaceAll(look.literal ? look.caption : plainCaption(look.caption), u"\r\n", u"\n"));
        out.key("access").number(accessPlace(look));
        tellFont(out, look.font);
        out.key("align").number(static_cast<int>(look.align));
        out.key("wrap").flag(look.wordWrap);
        tellEdge(out, inked);
        out.key("faded").flag(!inked.enabled && scheme.isUsual());
        tellBack(look.opaque, look.backColor);
        out.key("radius").number(static_cast<double>(look.cornerRadius));
    }
    void operator()(const Shape* shape) const {
        const auto& look = std::get<ShownShape>(shown.look);
        const Color face = shape->enabled ? look.backColor : style::kDisabledFace;
        out.key("oval").flag(look.kind == ShapeKind::Oval);
        tellBack(look.filled, face);
        out.key("border").color(look.filled ? scheme.edge(look.borderColor, face)
                                            : look.borderColor);
        out.key("width").number(static_cast<double>(look.borderWidth));
        out.key("radius").number(static_cast<double>(look.radius));
    }
    void operator()(const Line*) const {
        const auto& look = std::get<ShownLine>(shown.look);
        out.key("span").numbers({look.x1, look.y1, look.x2, look.y2});
        out.key("thickness").number(static_cast<double>(look.thickness));
        out.key("round").flag(look.roundEnds);
        tellEdge(out, inked);
    }
    void operator()(const Picture*) const {
        const auto& look = std::get<ShownPicture>(shown.look);
        out.key("photo").flag(look.image != nullptr && !scheme.isHighContrast());
        out.key("drawing").word(scheme.isHighContrast() ? "" : look.drawing);
        out.key("drawn").area(look.drawn);
    }
    void operator()(const Frame*) const {
        const auto& look = std::get<ShownFrame>(shown.look);
        tellBack(look.opaque, look.backColor);
    }
    void operator()(const TextField* field) const {
        const auto& look = std::get<ShownField>(shown.look);
        tellFont(out, look.font);
        out.key("ink").color(scheme.ink(look.textColor, look.backColor));
        out.key("back").color(scheme.ground(look.backColor));
        out.key("edge").color(scheme.edge(style::kEdge, look.backColor));
        out.key("text").text(look.text);
        out.key("caret").number(look.caret);
        out.key("selected").number(look.selectionLength);
        out.key("most").number(field->maxLength);
    }
    void operator()(const ListBox* list) const {
        const auto& look = std::get<ShownList>(shown.look);
        tellFont(out, look.font);
        out.key("chosen").color(
            darkEnoughForWhite(list->selectionColor, scheme.needed(kSmallTextContrast)));
        out.key("items").beginList();
        for (const Text& item : look.items)
            out.text(item);
        out.endList();
        out.key("index").number(look.listIndex);
    }
    void tellBack(bool filled, Color face) const {
        if (filled)
            out.key("back").color(scheme.ground(face));
        else
            out.key("back").none();
    }
};

struct KindTeller {
    Messages& out;
    void operator()(const Label* label) const {
        static constexpr const char* kRoles[] = {"caption", "button",       "checkbox",
                                                 "radio",   "notification", "reader"};
        out.key("kind").word(kRoles[static_cast<int>(label->role)]);
        out.key("tab").flag(label->tabStop);
        out.key("menu").flag(label->menu != nullptr);
    }
    void operator()(const Shape*) const { out.key("kind").word("shape"); }
    void operator()(const Line*) const { out.key("kind").word("line"); }
    void operator()(const Picture*) const { out.key("kind").word("picture"); }
    void operator()(const Frame*) const { out.key("kind").word("frame"); }
    void operator()(const TextField*) const { out.key("kind").word("field"); }
    void operator()(const ListBox*) const { out.key("kind").word("list"); }
};

}  // namespace

void tellLook(Messages& messages, const ControlRef& ref, const ShownControl& shown,
              const Inked& inked, const Scheme& scheme) {
    messages.key("look").beginObject();
    std::visit(LookTeller{messages, shown, inked, scheme}, ref);
    messages.endObject();
}

void tellKind(Messages& messages, const ControlRef& ref) {
    messages.key("id").word(controlOf(ref).id);
    std::visit(KindTeller{messages}, ref);
}

void tellColors(Messages& messages, const Scheme& scheme, Color accent) {
    constexpr Color kWhite = rgb(255, 255, 255);
    const Color paper = scheme.ground(style::kPaper);
    const auto tell = [&](const char* name, Color color) { messages.key(name).color(color); };
    // What is printed on the paper is as faint in the dark as by day.
    const auto printed = [&](Color color) {
        constexpr double kFaint = 0.25;
        if (scheme.isHighContrast())
            return paper;
        return scheme.isUsual() ? color : mixed(paper, darkEnoughForWhite(color, 3), kFaint);
    };
    messages.beginObject().key("tell").word("colors");
    tell("paper", paper);
    tell("rule", printed(rgb(223, 233, 244)));
    tell("margin", printed(rgb(245, 207, 207)));
    tell("margin2", printed(rgb(248, 224, 223)));
    tell("boxInk", scheme.ink(style::kInk, style::kPaper));
    tell("white", scheme.ground(kWhite));
    tell("whiteInk", scheme.ink(style::kInk, kWhite));
    tell("quiet", scheme.ground(style::kQuietFace));
    tell("edge", scheme.edge(style::kEdge, style::kPaper));
    tell("fineEdge", scheme.edge(style::kFineEdge, kWhite));
    tell("hoveredRow", scheme.ground(style::kHoveredRow));
    tell("accent", darkEnoughForWhite(accent, scheme.needed(kSmallTextContrast)));
    tell("selection", darkEnoughForWhite(style::kSelection, scheme.needed(kSmallTextContrast)));
    messages.key("high").flag(scheme.isHighContrast());
    messages.endObject();
}

}  // namespace quillor
