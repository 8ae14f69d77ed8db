#include "Kelvane/ViewModels/ViewContext.h"

namespace Kelvane {

namespace {
const ViewContext* installed = nullptr;
}

const ViewContext& ViewContext::current() {
    if (installed == nullptr)
        qFatal("No view context is installed");
    return *installed;
}

ViewContextScope::ViewContextScope(const ViewContext& context)
    : m_context(context)
    , m_previous(installed) {
    installed = &m_context;
}

ViewContextScope::~ViewContextScope() {
    installed = m_previous;
}

} // namespace Kelvane
