// A dialog's template as the guest hands it over: its length is only known from its contents.
#include "tools/runner/bridges/DialogTemplate.h"

namespace runner {

namespace {

class TemplateWalk
{
    static constexpr Word headerSize = 18; // of the dialog and of each control

    GuestMemory& memory;
    Address place;

  public:
    TemplateWalk(GuestMemory& guestMemory, Address begin) : memory(guestMemory), place(begin) {}

    Word Next()
    {
        place += sizeof(std::uint16_t);
        return memory.Read<std::uint16_t>(place - static_cast<Word>(sizeof(std::uint16_t)));
    }
    void SkipHeader()
    {
        memory.Checked(place, sizeof(Word), headerSize, Access::Read);
        place += headerSize;
    }
    // A text with its zero, or a mark and a number.
    void SkipTextOrNumber()
    {
        constexpr Word mark = 0xFFFF;
        Word character = Next();
        if (character == mark) {
            Next();
            return;
        }
        while (character != 0) {
            character = Next();
        }
    }
    void SkipToNextWord() { place = (place + wordSize - 1) & ~(wordSize - 1); }
};

} // namespace

static void SkipControl(Call& call, TemplateWalk& walk)
{
    walk.SkipToNextWord();
    walk.SkipHeader();
    walk.SkipTextOrNumber(); // class
    walk.SkipTextOrNumber(); // title
    if (walk.Next() != 0) {
        call.guest.Misuse("data for the creation of a control are not carried across");
    }
}

const DLGTEMPLATE* CheckedTemplate(Call& call, Address address)
{
    constexpr Word extended = 0xFFFF0001;
    GuestMemory& memory = call.guest.machine.memory;
    TemplateWalk walk(memory, address);
    walk.SkipHeader();
    const auto* form = reinterpret_cast<const DLGTEMPLATE*>(memory.Host(address));
    if (form->style == extended) {
        call.guest.Misuse("an extended dialog, which the device does not have", address);
    }
    walk.SkipTextOrNumber(); // menu
    walk.SkipTextOrNumber(); // class
    walk.SkipTextOrNumber(); // title
    if ((form->style & DS_SETFONT) != 0) {
        walk.Next(); // its size
        walk.SkipTextOrNumber();
    }
    for (WORD i = 0; i < form->cdit; i++) {
        SkipControl(call, walk);
    }
    return form;
}

} // namespace runner
