#include "setup/setupclamps.h"

#include "setup/clampeditor.h"
#include "setup/setupclamp2.h"
#include "widgets/dialogs/message.h"

SetupClamps::SetupClamps(const LiveData &data, QWidget *parent)
    : ViewContainer(UI_SETUP, {}, data,
                    {
                        { make<SetupClamp2>,
                          {
                              pass(&SetupClamp2::stored, &SetupClamps::closed),
                              pass(&SetupClamp2::cancelled, &SetupClamps::closed),
                              pass(&SetupClamp2::goClampAdd, &SetupClamps::beginAdding),
                              pass(&SetupClamp2::goClampEdit, &SetupClamps::beginEditing),
                          } },
                        { make<ClampEditor>,
                          {
                              way(&ClampEditor::cancelled, Choice),
                              pass(&ClampEditor::finished, &SetupClamps::takeClamp),
                          } },
                    },
                    parent)
{ }

void SetupClamps::init_parameter()
{
    ViewContainer::init_parameter();
    if (currentIndex() != Choice)
        showPage(Choice);
}

void SetupClamps::beginAdding()
{
    m_adding = true;
    static_cast<ClampEditor *>(page(Editor))->begin(Clamp());
    showPage(Editor);
}

void SetupClamps::beginEditing()
{
    m_adding = false;
    static_cast<ClampEditor *>(page(Editor))->begin(made<SetupClamp2>(Choice)->currentClamp());
    showPage(Editor);
}

void SetupClamps::takeClamp()
{
    auto *choice = made<SetupClamp2>(Choice);
    const Clamp &clamp = made<ClampEditor>(Editor)->clamp();
    if (m_adding ? choice->addClamp(clamp) : choice->changeClamp(clamp))
        showPage(Choice);
    else
        Message::showMessage(Message::Error, tr("Clamp Exist!"));
}
