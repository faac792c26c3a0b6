#pragma once

#include <array>
#include <string_view>

namespace store::demo {

/// How goods of a category are packed, which gives their sizes and units.
enum class PackingKind { Liquid, Dry, Fresh, Pieces };

/// A lowest category with its two upper ones. A name that differs from the row before opens a new
/// category of its level.
struct Category {
  std::string_view Top, Middle, Leaf;
  /// Names of goods, separated by "|".
  std::string_view Goods;
  PackingKind Packing;
  /// Purchase price of a single piece, in tens of won.
  int Low, High;
  /// Tax kind of the goods; '?' leaves it to the product.
  char Tax;
};

inline constexpr std::array kCategories = {
    Category{"음료", "탄산음료", "콜라", "콜라|체리콜라|라임콜라", PackingKind::Liquid, 50, 150,
             '?'},
    Category{"음료", "탄산음료", "사이다", "사이다|제로사이다|배사이다", PackingKind::Liquid, 45,
             140, '?'},
    Category{"음료", "주스", "과일주스", "오렌지주스|포도주스|사과주스|토마토주스",
             PackingKind::Liquid, 70, 260, '?'},
    Category{"음료", "주스", "전통음료", "식혜|수정과|매실차|대추차", PackingKind::Liquid, 60, 220,
             '?'},
    Category{"음료", "생수", "먹는샘물", "생수|암반수|탄산수", PackingKind::Liquid, 20, 90, '?'},
    Category{"음료", "커피", "캔커피", "라떼|아메리카노|카페모카|믹스커피", PackingKind::Liquid, 50,
             180, '?'},
    Category{"유제품", "우유", "흰우유", "우유|저지방우유|무지방우유", PackingKind::Liquid, 80, 250,
             '2'},
    Category{"유제품", "우유", "가공우유", "초코우유|딸기우유|바나나우유|커피우유",
             PackingKind::Liquid, 70, 190, '2'},
    Category{"유제품", "발효유", "요구르트", "요구르트|떠먹는요거트|마시는요거트",
             PackingKind::Liquid, 30, 160, '2'},
    Category{"유제품", "치즈", "슬라이스", "체다치즈|모짜렐라|크림치즈|버터", PackingKind::Dry, 220,
             700, '2'},
    Category{"과자", "스낵", "감자스낵", "감자칩|감자스틱|양파링", PackingKind::Dry, 60, 190, '?'},
    Category{"과자", "스낵", "곡물스낵", "옥수수콘|보리튀밥|쌀과자|누룽지과자", PackingKind::Dry,
             50, 170, '?'},
    Category{"과자", "비스킷", "쿠키", "초코쿠키|버터쿠키|웨하스|크래커", PackingKind::Dry, 70, 260,
             '?'},
    Category{"과자", "캔디", "사탕", "박하사탕|과일젤리|카라멜|풍선껌", PackingKind::Dry, 30, 130,
             '?'},
    Category{"과자", "빵", "봉지빵", "단팥빵|크림빵|소보로빵|식빵", PackingKind::Pieces, 60, 240,
             '?'},
    Category{"간편식", "라면", "봉지라면", "매운라면|해물라면|짜장라면|비빔면", PackingKind::Dry,
             50, 120, '?'},
    Category{"간편식", "라면", "컵라면", "큰컵라면|작은컵라면|컵우동|컵쌀국수", PackingKind::Dry,
             60, 150, '?'},
    Category{"간편식", "즉석밥", "밥류", "즉석밥|잡곡밥|컵밥|죽", PackingKind::Pieces, 80, 320,
             '?'},
    Category{"간편식", "냉동식품", "만두", "고기만두|김치만두|물만두|군만두", PackingKind::Dry, 250,
             900, '?'},
    Category{"간편식", "냉동식품", "튀김", "돈가스|치킨너겟|새우튀김|감자튀김", PackingKind::Dry,
             300, 980, '?'},
    Category{"간편식", "찌개", "즉석찌개", "된장찌개|김치찌개|육개장|미역국", PackingKind::Dry, 180,
             560, '?'},
    Category{"농산", "채소", "잎채소", "상추|배추|시금치|깻잎", PackingKind::Fresh, 90, 480, '1'},
    Category{"농산", "채소", "뿌리채소", "감자|고구마|당근|양파", PackingKind::Fresh, 120, 900,
             '1'},
    Category{"농산", "과일", "국산과일", "사과|배|감귤|포도", PackingKind::Fresh, 300, 2500, '1'},
    Category{"농산", "과일", "수입과일", "바나나|오렌지|키위|레몬", PackingKind::Fresh, 250, 1500,
             '1'},
    Category{"농산", "두부", "두부류", "두부|순두부|유부|콩나물", PackingKind::Fresh, 70, 260, '1'},
    Category{"수축산", "수산물", "생선", "고등어|갈치|삼치|오징어", PackingKind::Fresh, 400, 2200,
             '1'},
    Category{"수축산", "수산물", "건어물", "마른멸치|조미김|황태채|쥐포", PackingKind::Dry, 220,
             1800, '1'},
    Category{"수축산", "축산물", "돼지고기", "삼겹살|목살|앞다리살|갈비", PackingKind::Fresh, 900,
             2600, '1'},
    Category{"수축산", "축산물", "달걀", "달걀|메추리알|구운달걀", PackingKind::Pieces, 250, 900,
             '1'},
    Category{"주류", "맥주", "캔맥주", "맥주|흑맥주|밀맥주", PackingKind::Liquid, 90, 280, '0'},
    Category{"주류", "전통주", "막걸리", "막걸리|동동주|약주", PackingKind::Liquid, 100, 420, '0'},
    Category{"주류", "와인", "와인류", "레드와인|화이트와인|복분자주", PackingKind::Liquid, 500,
             2900, '0'},
    Category{"생활용품", "세제", "세탁세제", "세탁세제|섬유유연제|표백제", PackingKind::Liquid, 300,
             1300, '0'},
    Category{"생활용품", "세제", "주방세제", "주방세제|수세미|고무장갑", PackingKind::Pieces, 120,
             560, '0'},
    Category{"생활용품", "제지", "화장지", "화장지|물티슈|키친타월|미용티슈", PackingKind::Pieces,
             150, 1900, '0'},
    Category{"생활용품", "위생", "구강", "칫솔|치약|치실", PackingKind::Pieces, 80, 480, '0'},
    Category{"문구잡화", "문구", "필기구", "볼펜|연필|형광펜|지우개", PackingKind::Pieces, 30, 260,
             '0'},
    Category{"문구잡화", "문구", "노트", "공책|메모지|스케치북|파일철", PackingKind::Pieces, 60,
             420, '0'},
    Category{"문구잡화", "잡화", "생활잡화", "건전지|우산|멀티탭|양말", PackingKind::Pieces, 120,
             1200, '0'},
    Category{"건강미용", "건강식품", "영양제", "비타민|홍삼액|유산균|오메가3", PackingKind::Pieces,
             600, 2900, '?'},
    Category{"건강미용", "화장품", "기초화장품", "로션|스킨|핸드크림|선크림", PackingKind::Pieces,
             400, 2400, '0'},
    Category{"건강미용", "헤어", "샴푸", "샴푸|린스|헤어팩", PackingKind::Liquid, 300, 1500, '0'},
};

}  // namespace store::demo
