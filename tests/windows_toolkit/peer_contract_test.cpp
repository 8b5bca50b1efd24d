#include "support/peer_contract.h"

#include "windows_toolkit/windows_screen.h"

namespace morpho::test {

INSTANTIATE_TYPED_TEST_SUITE_P(Windows, PeerContract, WindowsScreen);

}  // namespace morpho::test
