#include "Model/Bank.h"

namespace tocca::soundpack {

std::string_view streamName(BankId id)
{
    switch (id) {
    case BankId::Deep:
        return "deep";
    case BankId::House:
        return "house";
    case BankId::Cap:
        return "cap";
    case BankId::Plate:
        return "plate";
    case BankId::Leaf:
        return "leaf";
    case BankId::Spring:
        return "spring";
    case BankId::Stab:
        return "stab";
    case BankId::Jacket:
        return "jacket";
    case BankId::Crack:
        return "crack";
    case BankId::Platen:
        return "platen";
    case BankId::Typebar:
        return "typebar";
    case BankId::Frame:
        return "frame";
    case BankId::Pawl:
        return "pawl";
    case BankId::Lever:
        return "lever";
    case BankId::Bell:
        return "bell";
    case BankId::Carriage:
        break;
    }
    return "carriage";
}

} // namespace tocca::soundpack
