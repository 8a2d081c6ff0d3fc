#pragma once

namespace Quillet {

// The tabs of the documents that go with the parcel, in their order.
enum class OngletDocuments { douane, facture };

} // namespace Quillet
