#include <algorithm>
#include <array>

#include "demo/generators.h"

namespace store::demo {
namespace {

struct Entry {
  const char* subject;
  const char* body;
  // Days before today and minutes after midnight.
  int daysAgo;
  int minutes;
  // Store codes, or nothing for all stores.
  const char* stores;
};

// Head office's editor stores quotes behind a backslash, and the board takes the backslash off
// again. More of them are for store 1001 than the ten that a board shows.
constexpr std::array kEntries = {
    Entry{
        "[필독] 연휴 배송 일정 안내",
        "연휴 기간 중 배송은 쉽니다.\n연휴 전 발주는 이틀 전 오전까지 확정 바랍니다.\n감사합니다.",
        1, 870, ""},
    Entry{R"(\'산들바람\' 신상품 입점 안내)",
          R"(이번 주부터 \'산들바람\' 음료 12종을 발주하실 수 있습니다.)", 1, 545, ""},
    Entry{R"(행사 안내 \"1+1 균일가\")",
          "대상 품목은 \\\"행사\\\" 분류에서 확인하세요.\n점포별 한도는 \\'10상자\\'입니다.", 2,
          600, ""},
    Entry{"냉장 상품 입고 시 온도 확인", "입고 담당자는 냉장 상품의 온도를 확인하고 기록해 주세요.",
          3, 700, ""},
    Entry{"성수역점 정기 점검", "다음 주 화요일 오전에 전산 점검이 있습니다.", 3, 555, "1001"},
    Entry{"단가 변경 안내 (유제품)", "다음 달 1일부터 유제품 일부 품목의 단가가 바뀝니다.", 5, 1010,
          ""},
    Entry{"제주 지역 배송 지연", "기상 악화로 배송이 하루 늦어집니다.", 6, 480, "1006"},
    Entry{"월말 재고조사 협조 요청",
          "1. 핸디터미널로 전 품목을 조사합니다.\n2. 조사 자료는 당일 전송합니다.\n3. 차이가 큰 "
          "품목은 다시 셉니다.",
          8, 615, ""},
    Entry{"신규 가맹점 오픈 축하", "노형점이 문을 열었습니다. 많은 격려 바랍니다.", 12, 540, ""},
    Entry{"부가세 신고 자료 제출", "매입전표 확인 후 본사 회계팀으로 보내 주세요.", 15, 905, ""},
    Entry{"서울 지역 점주 간담회", "장소: 본사 3층 회의실\n시간: 오후 2시", 18, 640, "1001,1002"},
    Entry{"유통기한 임박 상품 반품 기준", "반품은 유통기한 30일 전까지 접수합니다.", 21, 575, ""},
    Entry{"발주 마감 시간 변경", R"(마감이 \'오후 3시\'에서 \'오후 4시\'로 바뀝니다.)", 26, 760,
          ""},
    Entry{"계절 상품 사전 예약", "예약 발주는 이달 말까지 받습니다.", 33, 615, ""},
    Entry{"포장재 분리배출 안내", "종이 상자는 물류 차량으로 회수합니다.", 40, 690, ""},
    Entry{"본사 시스템 점검 완료", "점검을 마쳤습니다. 불편을 드려 죄송합니다.", 47, 1320, "1000"},
};

bool IsFor(const Entry& entry, const Store& store) {
  const std::string_view stores = entry.stores;
  return stores.empty() || stores.find(store.Code) != std::string_view::npos;
}

}  // namespace

std::vector<Notice> MakeNotices(const std::vector<Store>& stores, Day today) {
  std::vector<Notice> notices;
  // Oldest first: head office numbers them as they are written.
  for (auto entry = kEntries.rbegin(); entry != kEntries.rend(); ++entry) {
    Notice notice{entry->subject,
                  entry->body,
                  MomentText(today - std::chrono::days(entry->daysAgo), entry->minutes),
                  {}};
    std::transform(stores.begin(), stores.end(), std::back_inserter(notice.ForStore),
                   [entry](const Store& store) { return IsFor(*entry, store); });
    notices.push_back(std::move(notice));
  }
  return notices;
}

}  // namespace store::demo
