#include "site/current_model_space.h"

#include "cad/UdApDocManager.h"

namespace firestandard {

UdDbBlock* currentModelSpace() {
    UdApDocManager* manager = UdDocManagerPtr();
    UdApDocument* current = manager ? manager->CurDocument() : nullptr;
    UdDbDocument* document = current ? current->Database() : nullptr;
    return document ? document->GetModelSpace() : nullptr;
}

} // namespace firestandard
