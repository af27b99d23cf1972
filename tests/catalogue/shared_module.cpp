#include "SharedTexts.h"

#include "catalogue/shared_module.h"

unsigned int registerSharedModule() {
    registerSharedTexts();
    return MSG_SHARED;
}
