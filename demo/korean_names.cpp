#include "demo/korean_names.h"

#include <array>

namespace store::demo {
namespace {

constexpr std::array kFamilyNames = {"김", "이", "박", "최", "정", "강", "조", "윤", "장", "임",
                                     "한", "오", "서", "신", "권", "황", "안", "송", "류", "홍"};
constexpr std::array kGivenNames = {"민준", "서연", "도윤", "하은", "지호", "수아", "은우", "지안",
                                    "현우", "다은", "준서", "예린", "태윤", "나래", "성민", "보람",
                                    "영호", "미경", "상철", "정숙", "동혁", "혜진", "광수", "순영"};
constexpr std::array kDistricts = {"서울 중구",   "서울 성동구", "부산 해운대구", "대구 수성구",
                                   "인천 연수구", "광주 북구",   "대전 유성구",   "울산 남구",
                                   "경기 수원시", "경기 파주시", "강원 강릉시",   "충북 청주시",
                                   "충남 천안시", "전북 전주시", "전남 순천시",   "경북 포항시",
                                   "경남 창원시", "제주 제주시", "세종 조치원읍", "경기 평택시"};
constexpr std::array kRoads = {"한길로", "솔숲로", "바람길",   "느티나무로", "물레방아길",
                               "샘터로", "햇살로", "기찻길로", "장터길",     "별빛로"};

std::string FourDigits(Random& random) { return std::to_string(random.Between(1000, 9999)); }

}  // namespace

std::string PersonName(Random& random) {
  std::string name = random.Pick(kFamilyNames);
  return name + random.Pick(kGivenNames);
}

std::string StreetAddress(Random& random) {
  std::string address = random.Pick(kDistricts);
  address.append(" ").append(random.Pick(kRoads)).append(" ");
  return address + std::to_string(random.Between(1, 320));
}

std::string PhoneNumber(Random& random, const std::string& prefix) {
  return prefix + "-000-" + FourDigits(random);
}

std::string BusinessNumber(Random& random) {
  // One draw a statement: the operands of + come in whatever order the compiler likes.
  std::string number = "000-" + std::to_string(random.Between(10, 89));
  number += "-0";
  return number + FourDigits(random);
}

}  // namespace store::demo
