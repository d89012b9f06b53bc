<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>Words</name>
    <message>
        <source>hot-work area</source>
        <translation>动火作业区</translation>
    </message>
    <message>
        <source>formwork workshop</source>
        <translation>模板加工棚</translation>
    </message>
    <message>
        <source>woodworking workshop</source>
        <translation>木工加工棚</translation>
    </message>
    <message>
        <source>electrical and mechanical workshop</source>
        <translation>机电加工棚</translation>
    </message>
    <message>
        <source>open shed</source>
        <translation>开敞棚</translation>
    </message>
    <message>
        <source>office</source>
        <translation>办公用房</translation>
    </message>
    <message>
        <source>dormitory</source>
        <translation>宿舍</translation>
    </message>
    <message>
        <source>prefab house</source>
        <translation>活动房</translation>
    </message>
    <message>
        <source>crossing</source>
        <translation>交叉口</translation>
    </message>
    <message>
        <source>gate</source>
        <translation>出入口</translation>
    </message>
    <message>
        <source>electrical and mechanical yard</source>
        <translation>机电材料堆场</translation>
    </message>
    <message>
        <source>extinguisher box</source>
        <translation>灭火器箱</translation>
    </message>
    <message>
        <source>overhead cable</source>
        <translation>架空线路</translation>
    </message>
    <message>
        <source>reinforcement yard</source>
        <translation>钢筋堆场</translation>
    </message>
    <message>
        <source>formwork yard</source>
        <translation>模板堆场</translation>
    </message>
    <message>
        <source>tower crane</source>
        <translation>塔式起重机</translation>
    </message>
    <message>
        <source>wall</source>
        <translation>围墙</translation>
    </message>
    <message>
        <source>washing pool</source>
        <translation>洗车池</translation>
    </message>
    <message>
        <source>waste pool</source>
        <translation>垃圾池</translation>
    </message>
    <message>
        <source>wood yard</source>
        <translation>木材堆场</translation>
    </message>
    <message>
        <source>container house</source>
        <translation>箱式房</translation>
    </message>
    <message>
        <source>tea pavilion</source>
        <translation>茶水亭</translation>
    </message>
    <message>
        <source>closed house</source>
        <translation>封闭房屋</translation>
    </message>
    <message>
        <source>future building</source>
        <translation>在建工程</translation>
    </message>
    <message>
        <source>mixing station</source>
        <translation>搅拌站</translation>
    </message>
    <message>
        <source>half-open house</source>
        <translation>半开敞棚</translation>
    </message>
    <message>
        <source>poster</source>
        <translation>宣传牌</translation>
    </message>
    <message>
        <source>total step-down substation</source>
        <translation>总降压变电站</translation>
    </message>
    <message>
        <source>transformer substation</source>
        <translation>变配电房</translation>
    </message>
    <message>
        <source>block yard</source>
        <translation>砌块堆场</translation>
    </message>
    <message>
        <source>weighbridge</source>
        <translation>地磅</translation>
    </message>
    <message>
        <source>fire road</source>
        <translation>临时消防车道</translation>
    </message>
    <message>
        <source>road</source>
        <translation>道路</translation>
    </message>
    <message>
        <source>object</source>
        <translation>物体</translation>
    </message>
    <message>
        <source>rule %1</source>
        <translation>规则 %1</translation>
    </message>
    <message>
        <source>no evaluator knows this rule</source>
        <translation>没有评判程序认识此规则</translation>
    </message>
    <message>
        <source>no evaluator is of type &quot;%1&quot;</source>
        <translation>没有类型为“%1”的评判程序</translation>
    </message>
    <message>
        <source>ended at #%1, to which no box has a measurable distance; what follows it in the drawing was not judged</source>
        <translation>止于 #%1：没有灭火器箱与其距离可测；图中其后的构件未判断</translation>
    </message>
    <message>
        <source>at least %1 and at most %2</source>
        <translation>不小于 %1 且不大于 %2</translation>
    </message>
    <message>
        <source>at least %1</source>
        <translation>不小于 %1</translation>
    </message>
    <message>
        <source>at most %1</source>
        <translation>不大于 %1</translation>
    </message>
    <message>
        <source>zero</source>
        <translation>零</translation>
    </message>
    <message>
        <source>one</source>
        <translation>一</translation>
    </message>
    <message>
        <source>two</source>
        <translation>两</translation>
    </message>
    <message>
        <source>three</source>
        <translation>三</translation>
    </message>
    <message>
        <source>four</source>
        <translation>四</translation>
    </message>
    <message>
        <source>five</source>
        <translation>五</translation>
    </message>
    <message>
        <source>six</source>
        <translation>六</translation>
    </message>
    <message>
        <source>seven</source>
        <translation>七</translation>
    </message>
    <message>
        <source>eight</source>
        <translation>八</translation>
    </message>
    <message>
        <source>nine</source>
        <translation>九</translation>
    </message>
    <message>
        <source>In plan; a cable that reaches down to the ground is not judged.</source>
        <translation>按平面判断；垂到地面的线路不判断。</translation>
    </message>
    <message>
        <source>The nearest box more than 0 and at most {limit} mm away.</source>
        <translation>最近的灭火器箱距离大于 0 且不大于 {limit} mm。</translation>
    </message>
    <message>
        <source>At least {limit} mm wide.</source>
        <translation>宽度不小于 {limit} mm。</translation>
    </message>
    <message>
        <source>At least as many pairs of fire roads with meeting outlines as there are fire roads.</source>
        <translation>轮廓相接的临时消防车道对数不少于临时消防车道数。</translation>
    </message>
    <message>
        <source>Ends of centre lines join within {limit} mm.</source>
        <translation>中心线端点相距 {limit} mm 以内即相接。</translation>
    </message>
    <message>
        <source>At most {limit} m².</source>
        <translation>不大于 {limit} m²。</translation>
    </message>
    <message>
        <source>Needed above {limit} m² a floor, or from {floors} floors on.</source>
        <translation>每层大于 {limit} m² 或{floors}层及以上时需要。</translation>
    </message>
    <message>
        <source>{limit} mm high; touching counts.</source>
        <translation>高 {limit} mm；接触也算。</translation>
    </message>
    <message>
        <source>looks at the last object of the drawing only</source>
        <translation>仅检查图中最后一个物体</translation>
    </message>
    <message>
        <source>Wall ends at most {limit} mm apart meet.</source>
        <translation>墙端相距不大于 {limit} mm 即相接。</translation>
    </message>
    <message>
        <source>1 other</source>
        <translation>其他 1 个</translation>
    </message>
    <message numerus="yes">
        <source>%n others</source>
        <translation>
            <numerusform>其他 %n 个</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <comment>end of a list</comment>
        <translation>%1和%2</translation>
    </message>
    <message>
        <source>, </source>
        <translation>，</translation>
    </message>
    <message>
        <source>counts as touching %1 without being measured</source>
        <translation>未经测量即视为与%1接触</translation>
    </message>
    <message>
        <source>touches or overlaps %1</source>
        <translation>与%1接触或重叠</translation>
    </message>
    <message>
        <source>lies %1 from %2</source>
        <translation>距%2 %1</translation>
    </message>
    <message>
        <source>stands %1 from %2</source>
        <translation>距%2 %1</translation>
    </message>
    <message>
        <source>%1 %2; the rule asks for %3</source>
        <comment>element, distances, limits</comment>
        <translation>%1%2；规则要求%3</translation>
    </message>
    <message>
        <source>%1 has no extinguisher box, nor has the site any; the rule asks for one %2 away that does not touch it</source>
        <translation>%1没有灭火器箱，工地也没有；规则要求有一个距离%2 且不与其接触的灭火器箱</translation>
    </message>
    <message>
        <source>%1 counts as touched by %2 without being measured; the rule asks for one %3 away that does not touch it</source>
        <translation>%1未经测量即视为与%2接触；规则要求有一个距离%3 且不与其接触的灭火器箱</translation>
    </message>
    <message>
        <source>%1 is touched by %2; the rule asks for one %3 away that does not touch it</source>
        <translation>%1与%2接触；规则要求有一个距离%3 且不与其接触的灭火器箱</translation>
    </message>
    <message>
        <source>%1 stands %2 from the nearest box, %3; the rule asks for one %4 away that does not touch it</source>
        <translation>%1距最近的%3 %2；规则要求有一个距离%4 且不与其接触的灭火器箱</translation>
    </message>
    <message>
        <source>%1 has a floor of %2; the rule asks for %3</source>
        <translation>%1每层建筑面积为 %2；规则要求%3</translation>
    </message>
    <message>
        <source>%1 has a room of %2; the rule asks for %3</source>
        <translation>%1有一间房面积为 %2；规则要求%3</translation>
    </message>
    <message>
        <source>%1 is %2 wide; the rule asks for %3</source>
        <translation>%1净宽度为 %2；规则要求%3</translation>
    </message>
    <message>
        <source>%1 has no stair at each end; the rule asks for both where a house has %2 or more floors, or more than %3 m² a floor</source>
        <translation>%1未在两端各设楼梯；活动房达%2层及以上，或每层大于 %3 m² 时，规则要求两端都有</translation>
    </message>
    <message>
        <source>the fire roads of the site form no loop</source>
        <translation>工地的临时消防车道未形成环形</translation>
    </message>
    <message>
        <source>%1 is the only one, and the roads of the site form no closed loop</source>
        <translation>%1是唯一的出入口，且工地道路未形成环形</translation>
    </message>
    <message>
        <source>%1 and %2 lie on one side of the site: in one wall, or in two that meet at more than a right angle</source>
        <translation>%1与%2位于工地同一侧：在同一面围墙上，或在夹角大于直角的两面围墙上</translation>
    </message>
    <message>
        <source>%1 reaches into the %2 above %3 that the rule asks to keep clear</source>
        <translation>%1伸入%3上方规则要求保持净空的 %2 范围</translation>
    </message>
    <message>
        <source>%1 runs above %2</source>
        <translation>%1跨越%2</translation>
    </message>
    <message>
        <source>the site has no %1</source>
        <translation>工地未设置%1</translation>
    </message>
    <message>
        <source>the site</source>
        <translation>工地</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>element, what is wrong</comment>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>%1: %2 (%3)</source>
        <comment>element, what is wrong, related elements</comment>
        <translation>%1：%2（%3）</translation>
    </message>
    <message>
        <source>element</source>
        <translation>构件</translation>
    </message>
    <message>
        <source>%1 %2 &quot;%3&quot;</source>
        <comment>noun, handle, name</comment>
        <translation>%1 %2“%3”</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <comment>noun, handle</comment>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>an element that the drawing does not have</source>
        <translation>图中没有的构件</translation>
    </message>
    <message>
        <source>element %1</source>
        <translation>构件 %1</translation>
    </message>
    <message>
        <source>its outline crosses itself: the edge from corner %1 to %2 crosses that from %3 to %4</source>
        <translation>其轮廓自相交：第 %1 角至第 %2 角的边与第 %3 角至第 %4 角的边相交</translation>
    </message>
    <message>
        <source>its outline crosses itself</source>
        <translation>其轮廓自相交</translation>
    </message>
    <message>
        <source>its length is not above 0</source>
        <translation>其长度不大于 0</translation>
    </message>
    <message>
        <source>its outline has no area</source>
        <translation>其轮廓没有面积</translation>
    </message>
    <message>
        <source>its depth is not above 0</source>
        <translation>其进深不大于 0</translation>
    </message>
    <message>
        <source>its radius is not above 0</source>
        <translation>其半径不大于 0</translation>
    </message>
    <message>
        <source>it has no outline</source>
        <translation>其没有轮廓</translation>
    </message>
    <message>
        <source>its outline has no points</source>
        <translation>其轮廓没有点</translation>
    </message>
    <message>
        <source>its outline has only 1 point</source>
        <translation>其轮廓只有 1 个点</translation>
    </message>
    <message>
        <source>its outline has only 2 points</source>
        <translation>其轮廓只有 2 个点</translation>
    </message>
    <message>
        <source>it has no outline with an area</source>
        <translation>其没有带面积的轮廓</translation>
    </message>
    <message>
        <source>its stair code %1 is none of 0 to 4</source>
        <translation>其楼梯代码 %1 不在 0 至 4 之内</translation>
    </message>
    <message>
        <source>the centre line of a road of the site cannot be joined</source>
        <translation>工地有道路的中心线无法相接</translation>
    </message>
    <message>
        <source>it lies on the ground</source>
        <translation>其位于地面</translation>
    </message>
    <message>
        <source>it has no rooms</source>
        <translation>其没有房间</translation>
    </message>
    <message>
        <source>it has no neighbour with one door</source>
        <translation>相邻围墙都不是只有一个门</translation>
    </message>
    <message>
        <source>the site has nothing to compare it with</source>
        <translation>工地没有可与其比较的构件</translation>
    </message>
    <message>
        <source>elements of these types are never measured against each other</source>
        <translation>这两类构件之间从不测量</translation>
    </message>
    <message>
        <source>it is of another use</source>
        <translation>其用途不同</translation>
    </message>
    <message>
        <source>it or its door does not open</source>
        <translation>其本身或其门无法打开</translation>
    </message>
    <message>
        <source>no extinguisher box has a measurable distance to it, which ends the rule</source>
        <translation>没有灭火器箱与其距离可测，规则到此结束</translation>
    </message>
    <message>
        <source>the rule ended at an element before it in the drawing</source>
        <translation>规则已在图中位于其前的构件处结束</translation>
    </message>
    <message>
        <source>object #%1</source>
        <translation>物体 #%1</translation>
    </message>
    <message>
        <source>it does not open</source>
        <translation>无法打开</translation>
    </message>
    <message numerus="yes">
        <source>%n further errors, see &quot;firecheck lint-site&quot;</source>
        <translation>
            <numerusform>另有 %n 个错误，见“firecheck lint-site”</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 about the site file, see &quot;firecheck lint-site&quot;</source>
        <comment>doubts</comment>
        <translation>工地文件有%1，见“firecheck lint-site”</translation>
    </message>
    <message>
        <source>%1 in the rule file, see &quot;firecheck lint-rules&quot;</source>
        <comment>findings</comment>
        <translation>规则文件有%1，见“firecheck lint-rules”</translation>
    </message>
    <message>
        <source>time by rule</source>
        <translation>各规则用时</translation>
    </message>
    <message>
        <source>%1: %2 %, %3</source>
        <comment>file, share, rule</comment>
        <translation>%1：%2 %，%3</translation>
    </message>
    <message>
        <source>%1: %2 %, about %3 s left, %4</source>
        <comment>file, share, time, rule</comment>
        <translation>%1：%2 %，约剩 %3 秒，%4</translation>
    </message>
    <message>
        <source>a number</source>
        <translation>数字</translation>
    </message>
    <message>
        <source>expected a number from -1e12 to 1e12</source>
        <translation>应为 -1e12 至 1e12 之间的数字</translation>
    </message>
    <message>
        <source>a list</source>
        <translation>列表</translation>
    </message>
    <message>
        <source>expected the key &quot;%1&quot;</source>
        <translation>缺少键“%1”</translation>
    </message>
    <message>
        <source>a point [x, y, z]</source>
        <translation>点 [x, y, z]</translation>
    </message>
    <message>
        <source>null</source>
        <translation>null</translation>
    </message>
    <message>
        <source>an object</source>
        <translation>对象</translation>
    </message>
    <message>
        <source>a list of %1</source>
        <translation>%1 项的列表</translation>
    </message>
    <message>
        <source>a string</source>
        <translation>字符串</translation>
    </message>
    <message>
        <source>a boolean</source>
        <translation>布尔值</translation>
    </message>
    <message>
        <source>expected %1, found %2</source>
        <translation>应为%1，实为%2</translation>
    </message>
    <message>
        <source>true or false</source>
        <translation>true 或 false</translation>
    </message>
    <message>
        <source>expected a number that is not negative</source>
        <translation>应为非负数</translation>
    </message>
    <message>
        <source>a text</source>
        <translation>一个文本</translation>
    </message>
    <message>
        <source>a point [x, y]</source>
        <translation>点 [x, y]</translation>
    </message>
    <message>
        <source>a point [x, y] or [x, y, z]</source>
        <translation>点 [x, y] 或 [x, y, z]</translation>
    </message>
    <message>
        <source>a point [x, y] or [x, y, bulge]</source>
        <translation>点 [x, y] 或 [x, y, 凸度]</translation>
    </message>
    <message>
        <source>a number or a point [x, y]</source>
        <translation>数字或点 [x, y]</translation>
    </message>
    <message>
        <source>an object with &quot;low&quot; and &quot;high&quot;</source>
        <translation>带“low”和“high”的对象</translation>
    </message>
    <message>
        <source>expected no other keys than &quot;low&quot; and &quot;high&quot;</source>
        <translation>除“low”和“high”外不应有其他键</translation>
    </message>
    <message>
        <source>expected an integer, found a fraction</source>
        <translation>应为整数，实为小数</translation>
    </message>
    <message>
        <source>an integer</source>
        <translation>整数</translation>
    </message>
    <message>
        <source>expected an integer from %1 to %2</source>
        <translation>应为 %1 至 %2 之间的整数</translation>
    </message>
    <message>
        <source>one of %1, or an integer code</source>
        <translation>%1 之一，或整数代码</translation>
    </message>
    <message>
        <source>expected %1</source>
        <translation>应为%1</translation>
    </message>
    <message>
        <source>unknown key &quot;%1&quot;; the keys are %2</source>
        <translation>未知的键“%1”；可用的键有 %2</translation>
    </message>
    <message>
        <source>unknown key &quot;%1&quot;</source>
        <translation>未知的键“%1”</translation>
    </message>
    <message>
        <source>expected the key &quot;%1&quot; (%2)</source>
        <translation>缺少键“%1”（%2）</translation>
    </message>
    <message>
        <source>top level</source>
        <translation>最外层</translation>
    </message>
    <message>
        <source>%1; did you mean &quot;%2&quot;?</source>
        <translation>%1；是否应为“%2”？</translation>
    </message>
    <message>
        <source>the key &quot;%1&quot; occurs twice in its object</source>
        <translation>键“%1”在其对象中出现两次</translation>
    </message>
    <message>
        <source>an object with more than %1 keys</source>
        <translation>对象的键超过 %1 个</translation>
    </message>
    <message>
        <source>expected a finite number</source>
        <translation>应为有限的数</translation>
    </message>
    <message>
        <source>expected JSON in UTF-8: %1</source>
        <translation>应为 UTF-8 编码的 JSON：%1</translation>
    </message>
    <message>
        <source>nested deeper than %1 levels</source>
        <translation>嵌套超过 %1 层</translation>
    </message>
    <message>
        <source>expected JSON in UTF-8: found a NUL byte, as texts in UTF-16 have</source>
        <translation>应为 UTF-8 编码的 JSON：含有 NUL 字节，如 UTF-16 文本所有</translation>
    </message>
    <message>
        <source>The attribute &quot;%1&quot; of &quot;%2&quot; is never read.</source>
        <translation>“%2”的属性“%1”从不读取。</translation>
    </message>
    <message>
        <source>%1 is not measured and counts as 0 m away: every pair offends against a minimum.</source>
        <translation>%1 不作测量，距离视为 0 m：每一对都违反最小值。</translation>
    </message>
    <message>
        <source>The condition &quot;%1&quot; never judges: no distance offends.</source>
        <translation>条件“%1”从不作判断：任何距离都不违反。</translation>
    </message>
    <message>
        <source>No distance offends against it.</source>
        <translation>任何距离都不违反它。</translation>
    </message>
    <message>
        <source>It counts as infinite.</source>
        <translation>它视为无穷大。</translation>
    </message>
    <message>
        <source>No distance is below it.</source>
        <translation>没有距离小于它。</translation>
    </message>
    <message>
        <source>It counts as 0 m.</source>
        <translation>它视为 0 m。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no distance, which is a number of metres, 0 or more. %2</source>
        <comment>given, what it means</comment>
        <translation>“%1”不是距离；距离是以米计的数，不小于 0。%2</translation>
    </message>
    <message>
        <source>Only a minimum and a maximum are read; what follows the second &quot;:&quot; is not.</source>
        <translation>只读取最小值和最大值；第二个“:”之后的内容不读取。</translation>
    </message>
    <message>
        <source>Under &quot;less&quot; the maximum is not read; it is under &quot;less or more&quot;.</source>
        <translation>条件“less”下不读取最大值；条件“less or more”下才读取。</translation>
    </message>
    <message>
        <source>The minimum is above the maximum: every distance offends.</source>
        <translation>最小值大于最大值：任何距离都违反。</translation>
    </message>
    <message>
        <source>A distance of %1 m is more than any site has: limits are in metres.</source>
        <translation>没有工地有 %1 m 的距离：限值以米计。</translation>
    </message>
    <message>
        <source>Distances from %1 to %2 are not measured. The rule can never find anything.</source>
        <translation>从 %1 到 %2 的距离不作测量。此规则永远不会报出任何问题。</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <comment>element types</comment>
        <translation>%1 到 %2</translation>
    </message>
    <message>
        <source>No distance is below a minimum of 0 m. The rule can never find anything.</source>
        <translation>没有距离小于最小值 0 m。此规则永远不会报出任何问题。</translation>
    </message>
    <message>
        <source>Under this name no open shed counts: which ones do, the rule&apos;s name decides.</source>
        <translation>用此名称时没有开敞棚计入：哪些计入由规则名称决定。</translation>
    </message>
    <message>
        <source>Without &quot;%1&quot; the rule concerns no element.</source>
        <translation>没有“%1”时规则不涉及任何构件。</translation>
    </message>
    <message>
        <source>No element reports &quot;%1&quot;.</source>
        <translation>没有构件报告“%1”。</translation>
    </message>
    <message>
        <source>The rule&apos;s name is about %1, not %2.</source>
        <translation>规则名称针对 %1，而不是 %2。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no element type identifier.</source>
        <translation>“%1”不是构件类型标识。</translation>
    </message>
    <message>
        <source>The text speaks of %1, but the rule judges by %2.</source>
        <translation>文字写的是 %1，但规则按 %2 判断。</translation>
    </message>
    <message>
        <source>%1 Did you mean &quot;%2&quot;?</source>
        <translation>%1是否应为“%2”？</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>rule, message</comment>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>clean</source>
        <translation>没有问题</translation>
    </message>
    <message>
        <source>1 finding</source>
        <translation>1 个问题</translation>
    </message>
    <message numerus="yes">
        <source>%n findings</source>
        <translation>
            <numerusform>%n 个问题</numerusform>
        </translation>
    </message>
    <message>
        <source>Text directly in a rule is not read.</source>
        <translation>直接写在规则中的文字不读取。</translation>
    </message>
    <message>
        <source>The element &quot;%1&quot; is never read.</source>
        <translation>元素“%1”从不读取。</translation>
    </message>
    <message>
        <source>Only the first &quot;%1&quot; of a rule is read.</source>
        <translation>规则中只读取第一个“%1”。</translation>
    </message>
    <message>
        <source>The rule has no &quot;Type&quot;: no evaluator judges it.</source>
        <translation>规则没有“Type”：没有评判程序判断它。</translation>
    </message>
    <message>
        <source>No evaluator is of type &quot;%1&quot;.</source>
        <translation>没有类型为“%1”的评判程序。</translation>
    </message>
    <message>
        <source>This name belongs to rules of type &quot;%1&quot;, not to those of type &quot;%2&quot;.</source>
        <translation>此名称属于类型为“%1”的规则，不属于类型为“%2”的规则。</translation>
    </message>
    <message>
        <source>No evaluator of type &quot;%1&quot; knows this name.</source>
        <translation>类型为“%1”的评判程序不认识此名称。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; changes nothing for this rule. Fixed limit: %2</source>
        <translation>“%1”对此规则没有作用。固定限值：%2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; changes nothing for this rule.</source>
        <translation>“%1”对此规则没有作用。</translation>
    </message>
    <message>
        <source>Without a &quot;PropertyType&quot; the name means nothing: any %1 satisfies the rule.</source>
        <translation>没有“PropertyType”时名称没有意义：任何 %1 都满足规则。</translation>
    </message>
    <message>
        <source>These bytes are no text in the encoding of the file, which is UTF-8 unless it declares another: texts come out garbled.</source>
        <translation>这些字节不是本文件编码的文字；未声明其他编码时为 UTF-8：文字会成为乱码。</translation>
    </message>
    <message>
        <source>Text between the groups is not read.</source>
        <translation>组与组之间的文字不读取。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; stands directly in the document element and is taken for a group: put it into one.</source>
        <translation>“%1”直接位于文档元素中，被当作组：请把它放入组内。</translation>
    </message>
    <message>
        <source>A comment in a group becomes an empty rule: put it between the groups.</source>
        <translation>组内的注释会成为空规则：请放在组与组之间。</translation>
    </message>
    <message>
        <source>Text in a group becomes an empty rule: put it between the groups.</source>
        <translation>组内的文字会成为空规则：请放在组与组之间。</translation>
    </message>
    <message>
        <source>A processing instruction in a group becomes an empty rule: put it between the groups.</source>
        <translation>组内的处理指令会成为空规则：请放在组与组之间。</translation>
    </message>
    <message>
        <source>The rule is filed under the key &quot;%1&quot;, like the one in line %2.</source>
        <translation>此规则归在键“%1”下，与第 %2 行的规则相同。</translation>
    </message>
    <message>
        <source>expected at least one rule</source>
        <translation>应至少有一条规则</translation>
    </message>
    <message>
        <source>not judged: %1</source>
        <translation>未判断：%1</translation>
    </message>
    <message>
        <source>a gate that is not in the drawing offends</source>
        <translation>图中没有的出入口不符合</translation>
    </message>
    <message>
        <source>the site as a whole offends</source>
        <translation>工地整体不符合</translation>
    </message>
    <message>
        <source>1 offends</source>
        <translation>1 个不符合</translation>
    </message>
    <message numerus="yes">
        <source>%n offend</source>
        <translation>
            <numerusform>%n 个不符合</numerusform>
        </translation>
    </message>
    <message>
        <source>none offends</source>
        <translation>全部符合</translation>
    </message>
    <message>
        <source>none can offend as the rule is written</source>
        <translation>按规则现有写法不可能不符合</translation>
    </message>
    <message>
        <source>without an outline</source>
        <translation>没有轮廓</translation>
    </message>
    <message>
        <source>with an outline that crosses itself</source>
        <translation>轮廓自相交</translation>
    </message>
    <message>
        <source>since a centre line cannot be joined</source>
        <translation>有中心线无法相接</translation>
    </message>
    <message>
        <source>on the ground</source>
        <translation>位于地面</translation>
    </message>
    <message>
        <source>without rooms</source>
        <translation>没有房间</translation>
    </message>
    <message>
        <source>without a neighbour that has one door</source>
        <translation>没有只设一个门的相邻围墙</translation>
    </message>
    <message>
        <source>nothing to compare with</source>
        <translation>没有可比较的构件</translation>
    </message>
    <message>
        <source>never measured against elements of the other type</source>
        <translation>与另一类构件之间从不测量</translation>
    </message>
    <message>
        <source>of another use</source>
        <translation>用途不同</translation>
    </message>
    <message>
        <source>with a door that does not open</source>
        <translation>门无法打开</translation>
    </message>
    <message>
        <source>to which no box has a measurable distance</source>
        <translation>没有灭火器箱与其距离可测</translation>
    </message>
    <message>
        <source>after the end of the rule</source>
        <translation>位于规则结束之后</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <comment>count, why not judged</comment>
        <translation>%1 个%2</translation>
    </message>
    <message>
        <source>nothing to judge</source>
        <translation>无可判断</translation>
    </message>
    <message>
        <source>nothing to judge: %1 found</source>
        <translation>无可判断：有 %1 个</translation>
    </message>
    <message>
        <source>nothing to judge: %1 found, %2</source>
        <comment>count, why</comment>
        <translation>无可判断：有 %1 个，%2</translation>
    </message>
    <message>
        <source>%1 found, %2</source>
        <comment>count, outcome</comment>
        <translation>有 %1 个，%2</translation>
    </message>
    <message>
        <source>%1 pairs never measured</source>
        <translation>%1 对从不测量</translation>
    </message>
    <message>
        <source>%1 not judged</source>
        <comment>count</comment>
        <translation>%1 个未判断</translation>
    </message>
    <message>
        <source>%1 not judged: %2</source>
        <comment>count, why</comment>
        <translation>%1 个未判断：%2</translation>
    </message>
    <message>
        <source>looked for, missing</source>
        <translation>已查找，缺失</translation>
    </message>
    <message>
        <source>looked for, present</source>
        <translation>已查找，存在</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <comment>outcome, note</comment>
        <translation>%1（%2）</translation>
    </message>
    <message>
        <source>1 object</source>
        <translation>1 个物体</translation>
    </message>
    <message numerus="yes">
        <source>%n objects</source>
        <translation>
            <numerusform>%n 个物体</numerusform>
        </translation>
    </message>
    <message>
        <source>1 violation</source>
        <translation>1 处不符合</translation>
    </message>
    <message numerus="yes">
        <source>%n violations</source>
        <translation>
            <numerusform>%n 处不符合</numerusform>
        </translation>
    </message>
    <message>
        <source>1 rule</source>
        <translation>1 条规则</translation>
    </message>
    <message numerus="yes">
        <source>%n rules</source>
        <translation>
            <numerusform>%n 条规则</numerusform>
        </translation>
    </message>
    <message>
        <source>at (%1, %2) m</source>
        <translation>位于 (%1, %2) m</translation>
    </message>
    <message>
        <source>1 element not judged</source>
        <translation>1 个构件未判断</translation>
    </message>
    <message numerus="yes">
        <source>%n elements not judged</source>
        <translation>
            <numerusform>%n 个构件未判断</numerusform>
        </translation>
    </message>
    <message>
        <source>1 rule left out</source>
        <translation>未报告 1 条规则</translation>
    </message>
    <message numerus="yes">
        <source>%n rules left out</source>
        <translation>
            <numerusform>未报告 %n 条规则</numerusform>
        </translation>
    </message>
    <message>
        <source>no violations</source>
        <translation>未发现不符合</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <comment>violations, rules</comment>
        <translation>%1，涉及 %2</translation>
    </message>
    <message>
        <source>accepted: %1</source>
        <comment>reason</comment>
        <translation>已接受：%1</translation>
    </message>
    <message>
        <source>Accepted before, but no longer there</source>
        <translation>曾经接受、现已不存在</translation>
    </message>
    <message>
        <source>Not judged</source>
        <translation>未判断</translation>
    </message>
    <message>
        <source>Judged by no rule</source>
        <translation>没有规则判断</translation>
    </message>
    <message>
        <source>What was judged</source>
        <translation>判断情况</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>element, why it was not judged</comment>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>by %1</source>
        <comment>rule</comment>
        <translation>规则 %1</translation>
    </message>
    <message>
        <source>by %1 and 1 other rule</source>
        <translation>规则 %1 和其他 1 条规则</translation>
    </message>
    <message numerus="yes">
        <source>by %1 and %n other rules</source>
        <translation>
            <numerusform>规则 %1 和其他 %n 条规则</numerusform>
        </translation>
    </message>
    <message>
        <source>accepted at %1, but worse now: %2</source>
        <translation>曾在 %1 时接受，现已变差：%2</translation>
    </message>
    <message>
        <source>expected a rule file, found a directory</source>
        <translation>应为规则文件，实为目录</translation>
    </message>
    <message>
        <source>expected a rule file, found something else that is no file</source>
        <translation>应为规则文件，实为其他非文件</translation>
    </message>
    <message>
        <source>cannot be read: %1</source>
        <translation>无法读取：%1</translation>
    </message>
    <message>
        <source>too large, too deeply nested or too many entities for a rule file</source>
        <translation>规则文件过大、嵌套过深或实体过多</translation>
    </message>
    <message>
        <source>expected a well-formed XML document: %1</source>
        <translation>应为格式良好的 XML 文档：%1</translation>
    </message>
    <message>
        <source>what the house is used for</source>
        <translation>房屋用途</translation>
    </message>
    <message>
        <source>what the shed is used for</source>
        <translation>开敞棚用途</translation>
    </message>
    <message>
        <source>what the house is used for, in the words of the rules</source>
        <translation>房屋用途，用规则中的词</translation>
    </message>
    <message>
        <source>middle of the mast&apos;s foot</source>
        <translation>塔身底部中心</translation>
    </message>
    <message>
        <source>height of the jibs&apos; underside above the foot; 0 for a crane without mast</source>
        <translation>起重臂底面距塔底的高度；没有塔身时为 0</translation>
    </message>
    <message>
        <source>from the mast&apos;s axis; 0 for none</source>
        <translation>距塔身轴线；没有时为 0</translation>
    </message>
    <message>
        <source>one end in plan</source>
        <translation>平面上的一端</translation>
    </message>
    <message>
        <source>the other end in plan</source>
        <translation>平面上的另一端</translation>
    </message>
    <message>
        <source>height of the poster</source>
        <translation>宣传牌高度</translation>
    </message>
    <message>
        <source>middle of the footprint</source>
        <translation>占地轮廓中心</translation>
    </message>
    <message>
        <source>along its own x axis</source>
        <translation>沿自身 x 轴</translation>
    </message>
    <message>
        <source>along its own y axis</source>
        <translation>沿自身 y 轴</translation>
    </message>
    <message>
        <source>centre of the circle</source>
        <translation>圆心</translation>
    </message>
    <message>
        <source>radius of the circle</source>
        <translation>圆的半径</translation>
    </message>
    <message>
        <source>expected a footprint: &quot;center&quot;, &quot;length&quot; and &quot;depth&quot;, or &quot;circle&quot;, or &quot;polyline&quot;</source>
        <translation>缺少占地轮廓：“center”、“length”和“depth”，或“circle”，或“polyline”</translation>
    </message>
    <message>
        <source>expected &quot;shapeKind&quot; to say which of the footprints counts</source>
        <translation>应由“shapeKind”说明采用哪个占地轮廓</translation>
    </message>
    <message>
        <source>the waste it takes</source>
        <translation>垃圾种类</translation>
    </message>
    <message>
        <source>&quot;none&quot; or a list of points</source>
        <translation>“none”或点的列表</translation>
    </message>
    <message>
        <source>start of the centre line</source>
        <translation>中心线起点</translation>
    </message>
    <message>
        <source>end of the centre line</source>
        <translation>中心线终点</translation>
    </message>
    <message>
        <source>start in plan</source>
        <translation>平面起点</translation>
    </message>
    <message>
        <source>end in plan</source>
        <translation>平面终点</translation>
    </message>
    <message>
        <source>height of the cable&apos;s axis at its start, in metres</source>
        <translation>线路轴线在起点的高度，以米计</translation>
    </message>
    <message>
        <source>expected a handle other than 0</source>
        <translation>句柄不能为 0</translation>
    </message>
    <message>
        <source>the number by which reports name the object; each object has its own</source>
        <translation>报告用来称呼物体的编号；每个物体各有一个</translation>
    </message>
    <message>
        <source>element type identifier, or model kind identifier of a 3-D model</source>
        <translation>构件类型标识，或三维模型的种类标识</translation>
    </message>
    <message>
        <source>unknown class of 3-D models &quot;%1&quot;</source>
        <translation>未知的三维模型类别“%1”</translation>
    </message>
    <message>
        <source>unknown class &quot;%1&quot;</source>
        <translation>未知的类别“%1”</translation>
    </message>
    <message>
        <source>%1, which is a use of &quot;%2&quot;</source>
        <translation>%1，它是“%2”的一种用途</translation>
    </message>
    <message>
        <source>%1; the classes are %2</source>
        <translation>%1；可用的类别有 %2</translation>
    </message>
    <message>
        <source>a list of objects</source>
        <translation>物体列表</translation>
    </message>
    <message>
        <source>expected a handle of its own, found %1 once more</source>
        <translation>句柄应各不相同，%1 再次出现</translation>
    </message>
    <message>
        <source>expected the key &quot;class&quot; (what the object is)</source>
        <translation>缺少键“class”（物体是什么）</translation>
    </message>
    <message>
        <source>the name of a class</source>
        <translation>类别名称</translation>
    </message>
    <message>
        <source>a site file</source>
        <translation>工地文件</translation>
    </message>
    <message>
        <source>middle of the door</source>
        <translation>门的中心</translation>
    </message>
    <message>
        <source>from the wall&apos;s start, along it</source>
        <translation>沿墙距起点</translation>
    </message>
    <message>
        <source>a list of doors</source>
        <translation>门的列表</translation>
    </message>
    <message>
        <source>start of the axis</source>
        <translation>轴线起点</translation>
    </message>
    <message>
        <source>end of the axis</source>
        <translation>轴线终点</translation>
    </message>
    <message>
        <source>expected the handle of a door, found %1</source>
        <translation>应为门的句柄，实为 %1</translation>
    </message>
    <message>
        <source>expected a &quot;key&quot; that no other door of the wall has</source>
        <translation>“key”应与墙上其他门的不同</translation>
    </message>
    <message>
        <source>The code %1 has no meaning here; known are %2.</source>
        <translation>代码 %1 在此没有意义；已知的有 %2。</translation>
    </message>
    <message>
        <source>The door is %1 along a wall of %2.</source>
        <translation>门位于 %2 长的墙上 %1 处。</translation>
    </message>
    <message>
        <source>%1 stands %2 from where this wall says.</source>
        <translation>%1 距此墙所说的位置 %2。</translation>
    </message>
    <message>
        <source>No rule knows the identifier &quot;%1&quot;.</source>
        <translation>没有规则认识标识“%1”。</translation>
    </message>
    <message>
        <source>No rule can measure the object: %1.</source>
        <translation>没有规则能测量此物体：%1。</translation>
    </message>
    <message>
        <source>The object stands %1 from the middle of the site.</source>
        <translation>此物体距工地中心 %1。</translation>
    </message>
    <message>
        <source>The object stands in %1.</source>
        <translation>此物体位于 %1 之内。</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <comment>object, place in the file</comment>
        <translation>%1，%2</translation>
    </message>
    <message>
        <source>error: %1: %2 [%3]</source>
        <comment>place, message, code</comment>
        <translation>错误：%1：%2 [%3]</translation>
    </message>
    <message>
        <source>doubt: %1: %2 [%3]</source>
        <comment>place, message, code</comment>
        <translation>疑问：%1：%2 [%3]</translation>
    </message>
    <message>
        <source>1 error</source>
        <translation>1 个错误</translation>
    </message>
    <message numerus="yes">
        <source>%n errors</source>
        <translation>
            <numerusform>%n 个错误</numerusform>
        </translation>
    </message>
    <message>
        <source>1 doubt</source>
        <translation>1 处疑问</translation>
    </message>
    <message numerus="yes">
        <source>%n doubts</source>
        <translation>
            <numerusform>%n 处疑问</numerusform>
        </translation>
    </message>
    <message>
        <source>floors</source>
        <translation>层</translation>
    </message>
    <message>
        <source>degrees</source>
        <translation>度</translation>
    </message>
    <message>
        <source>%1 %3 is less than %2 %3, which no such element has.</source>
        <comment>value, bound, unit</comment>
        <translation>%1 %3 小于 %2 %3，没有这样的构件。</translation>
    </message>
    <message>
        <source>%1 %3 is more than %2 %3, which no such element has.</source>
        <comment>value, bound, unit</comment>
        <translation>%1 %3 大于 %2 %3，没有这样的构件。</translation>
    </message>
    <message>
        <source>%1 mm is outside the house, which is %2 mm long.</source>
        <translation>%1 mm 在房屋之外，房屋长 %2 mm。</translation>
    </message>
    <message>
        <source>The wall at %1 mm stands less than 500 mm behind the one at %2 mm.</source>
        <translation>%1 mm 处的隔墙距 %2 mm 处的不足 500 mm。</translation>
    </message>
    <message>
        <source>The low corner lies above the high one.</source>
        <translation>低角点高于高角点。</translation>
    </message>
    <message>
        <source>No rule looks for the use &quot;%1&quot;, and no house has one of %2, which rules look for.</source>
        <translation>没有规则查找用途“%1”，也没有房屋具有规则所查找的 %2。</translation>
    </message>
    <message>
        <source>a directory</source>
        <translation>目录</translation>
    </message>
    <message>
        <source>more than 256 MiB</source>
        <translation>超过 256 MiB</translation>
    </message>
    <message>
        <source>a pipe that nothing was written to</source>
        <translation>没有写入内容的管道</translation>
    </message>
    <message>
        <source>the rule was not run</source>
        <translation>此规则未运行</translation>
    </message>
    <message>
        <source>the element was not judged</source>
        <translation>此构件未判断</translation>
    </message>
    <message>
        <source>the site was not checked</source>
        <translation>此工地未检查</translation>
    </message>
    <message>
        <source>%1: %2 (accepted)</source>
        <comment>rule, sentence</comment>
        <translation>%1：%2（已接受）</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>rule, sentence</comment>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>before: %1</source>
        <translation>之前：%1</translation>
    </message>
    <message>
        <source>%1 new</source>
        <comment>count</comment>
        <translation>新增 %1</translation>
    </message>
    <message>
        <source>%1 worse</source>
        <comment>count</comment>
        <translation>变差 %1</translation>
    </message>
    <message>
        <source>%1 better</source>
        <comment>count</comment>
        <translation>改善 %1</translation>
    </message>
    <message>
        <source>%1 gone</source>
        <comment>count</comment>
        <translation>消除 %1</translation>
    </message>
    <message>
        <source>%1 no longer judged</source>
        <comment>count</comment>
        <translation>不再判断 %1</translation>
    </message>
    <message>
        <source>%1 unchanged</source>
        <comment>count</comment>
        <translation>未变 %1</translation>
    </message>
    <message>
        <source>New</source>
        <translation>新增</translation>
    </message>
    <message>
        <source>Worse</source>
        <translation>变差</translation>
    </message>
    <message>
        <source>No longer judged</source>
        <translation>不再判断</translation>
    </message>
    <message>
        <source>Better</source>
        <translation>改善</translation>
    </message>
    <message>
        <source>Gone</source>
        <translation>消除</translation>
    </message>
    <message>
        <source>expected an object as a JSON report has it</source>
        <translation>应为 JSON 报告中的对象</translation>
    </message>
    <message>
        <source>expected what a JSON report has here</source>
        <translation>应为 JSON 报告在此处的内容</translation>
    </message>
    <message>
        <source>a JSON report</source>
        <translation>JSON 报告</translation>
    </message>
    <message>
        <source>, </source>
        <comment>in a list</comment>
        <translation>、</translation>
    </message>
    <message>
        <source>bending machine</source>
        <translation>弯曲机</translation>
    </message>
    <message>
        <source>concrete pump truck</source>
        <translation>混凝土泵车</translation>
    </message>
    <message>
        <source>cement yard</source>
        <translation>水泥堆场</translation>
    </message>
    <message>
        <source>circular saw</source>
        <translation>圆盘锯</translation>
    </message>
    <message>
        <source>column wall</source>
        <translation>柱式围墙</translation>
    </message>
    <message>
        <source>curtain wall yard</source>
        <translation>幕墙堆场</translation>
    </message>
    <message>
        <source>decoration materials yard</source>
        <translation>装饰材料堆场</translation>
    </message>
    <message>
        <source>concrete pump</source>
        <translation>混凝土地泵</translation>
    </message>
    <message>
        <source>spoil yard</source>
        <translation>渣土堆场</translation>
    </message>
    <message>
        <source>fence</source>
        <translation>围栏</translation>
    </message>
    <message>
        <source>fire hydrant</source>
        <translation>消火栓</translation>
    </message>
    <message>
        <source>flagpole</source>
        <translation>旗杆</translation>
    </message>
    <message>
        <source>gantry crane</source>
        <translation>龙门吊</translation>
    </message>
    <message>
        <source>gravel yard</source>
        <translation>石子堆场</translation>
    </message>
    <message>
        <source>pavement</source>
        <translation>硬化地面</translation>
    </message>
    <message>
        <source>concrete mixer truck</source>
        <translation>混凝土罐车</translation>
    </message>
    <message>
        <source>lawn</source>
        <translation>草坪</translation>
    </message>
    <message>
        <source>car park</source>
        <translation>停车场</translation>
    </message>
    <message>
        <source>power distribution box</source>
        <translation>配电箱</translation>
    </message>
    <message>
        <source>mobile crane</source>
        <translation>汽车吊</translation>
    </message>
    <message>
        <source>sand yard</source>
        <translation>砂堆场</translation>
    </message>
    <message>
        <source>scaffolding yard</source>
        <translation>脚手架堆场</translation>
    </message>
    <message>
        <source>section steel yard</source>
        <translation>型钢堆场</translation>
    </message>
    <message>
        <source>septic tank</source>
        <translation>化粪池</translation>
    </message>
    <message>
        <source>steel plate wall yard</source>
        <translation>钢板墙堆场</translation>
    </message>
    <message>
        <source>storage pool</source>
        <translation>蓄水池</translation>
    </message>
    <message>
        <source>straightening machine</source>
        <translation>调直机</translation>
    </message>
    <message>
        <source>pole</source>
        <translation>电线杆</translation>
    </message>
    <message>
        <source>temporary pool</source>
        <translation>临时水池</translation>
    </message>
    <message>
        <source>reusable materials yard</source>
        <translation>周转材料堆场</translation>
    </message>
    <message>
        <source>excavator</source>
        <translation>挖掘机</translation>
    </message>
    <message>
        <source>waste yard</source>
        <translation>废料堆场</translation>
    </message>
    <message>
        <source>water pipe</source>
        <translation>水管</translation>
    </message>
    <message>
        <source>water well</source>
        <translation>水井</translation>
    </message>
    <message>
        <source>road roller</source>
        <translation>压路机</translation>
    </message>
    <message>
        <source>bridge</source>
        <translation>桥</translation>
    </message>
    <message>
        <source>construction hoist</source>
        <translation>施工电梯</translation>
    </message>
    <message>
        <source>container</source>
        <translation>集装箱</translation>
    </message>
    <message>
        <source>display board</source>
        <translation>展板</translation>
    </message>
    <message>
        <source>ditch</source>
        <translation>沟</translation>
    </message>
    <message>
        <source>electrical room</source>
        <translation>配电室</translation>
    </message>
    <message>
        <source>existing building</source>
        <translation>既有建筑</translation>
    </message>
    <message>
        <source>trees</source>
        <translation>树木</translation>
    </message>
    <message>
        <source>safety lecture stand</source>
        <translation>安全讲台</translation>
    </message>
    <message>
        <source>safety walkway</source>
        <translation>安全通道</translation>
    </message>
    <message>
        <source>%1 by 1 element</source>
        <comment>violations, such as &quot;2 violations&quot;</comment>
        <translation>1 个构件有%1</translation>
    </message>
    <message numerus="yes">
        <source>%1 by %n elements</source>
        <comment>violations, such as &quot;2 violations&quot;</comment>
        <translation>
            <numerusform>%n 个构件有%1</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of 1 rule judged</source>
        <translation>1 条规则中已判定 %1 条</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %n rules judged</source>
        <translation>
            <numerusform>%n 条规则中已判定 %1 条</numerusform>
        </translation>
    </message>
    <message>
        <source>%1, no violations</source>
        <comment>rules judged</comment>
        <translation>%1，无违规</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <comment>rules judged, violations</comment>
        <translation>%1，%2</translation>
    </message>
    <message>
        <source>%1, %2, %3 accepted</source>
        <comment>rules judged, violations, number</comment>
        <translation>%1，%2，其中已接受 %3 处</translation>
    </message>
    <message>
        <source>No clause is cited</source>
        <translation>未引用条文</translation>
    </message>
    <message numerus="yes">
        <source>%n accepted</source>
        <translation>
            <numerusform>已接受 %n 处</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <comment>something and how many there are</comment>
        <translation>%1（%2）</translation>
    </message>
    <message>
        <source>All rules</source>
        <translation>全部规则</translation>
    </message>
    <message>
        <source>All elements</source>
        <translation>全部构件</translation>
    </message>
    <message>
        <source>by rule</source>
        <translation>按规则</translation>
    </message>
    <message>
        <source>by clause</source>
        <translation>按条文</translation>
    </message>
    <message>
        <source>by how much is missing</source>
        <translation>按不足比例</translation>
    </message>
    <message>
        <source>Showing %1 of %2 violations</source>
        <comment>by a script</comment>
        <translation>显示 %2 处违规中的 %1 处</translation>
    </message>
    <message>
        <source>Rule</source>
        <translation>规则</translation>
    </message>
    <message>
        <source>Element</source>
        <translation>构件</translation>
    </message>
    <message>
        <source>Name or handle</source>
        <translation>名称或句柄</translation>
    </message>
    <message>
        <source>Order</source>
        <translation>排序</translation>
    </message>
    <message>
        <source>Hide what is accepted</source>
        <translation>隐藏已接受的违规</translation>
    </message>
    <message>
        <source>Show all</source>
        <translation>全部显示</translation>
    </message>
    <message>
        <source>n and p choose the next and the previous one.</source>
        <translation>按 n 键选下一处，按 p 键选上一处。</translation>
    </message>
    <message>
        <source>Nothing breaks a rule.</source>
        <translation>没有违反规则之处。</translation>
    </message>
    <message>
        <source>Accepted: %1</source>
        <translation>已接受：%1</translation>
    </message>
    <message>
        <source>and 1 other</source>
        <translation>以及另外 1 个</translation>
    </message>
    <message numerus="yes">
        <source>and %n others</source>
        <translation>
            <numerusform>以及另外 %n 个</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 % missing</source>
        <comment>of the distance asked for</comment>
        <translation>不足 %1 %</translation>
    </message>
    <message>
        <source>%1 % too much</source>
        <comment>of the value measured</comment>
        <translation>超出 %1 %</translation>
    </message>
    <message>
        <source>Fire-safety check</source>
        <translation>消防检查</translation>
    </message>
    <message>
        <source>%1.</source>
        <comment>a sentence and its full stop</comment>
        <translation>%1。</translation>
    </message>
    <message>
        <source>Site</source>
        <translation>工地</translation>
    </message>
    <message>
        <source>File</source>
        <translation>文件</translation>
    </message>
    <message>
        <source>Objects</source>
        <translation>对象</translation>
    </message>
    <message>
        <source>Violations</source>
        <translation>不符合项</translation>
    </message>
    <message>
        <source>Accepted</source>
        <translation>已接受</translation>
    </message>
    <message numerus="yes">
        <source>Fire-safety check of %n sites</source>
        <translation>
            <numerusform>%n 个工地的消防检查</numerusform>
        </translation>
    </message>
    <message>
        <source>N</source>
        <comment>north, by the arrow of a plan</comment>
        <translation>北</translation>
    </message>
    <message>
        <source>%1 m</source>
        <translation>%1 m</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>放大</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>缩小</translation>
    </message>
    <message>
        <source>All</source>
        <translation>全图</translation>
    </message>
    <message>
        <source>Show the whole plan</source>
        <translation>显示整张平面图</translation>
    </message>
    <message>
        <source>offends, in the colour of its rule</source>
        <translation>违规，颜色表示规则</translation>
    </message>
    <message>
        <source>distance between the closest points</source>
        <translation>最近点之间的距离</translation>
    </message>
    <message>
        <source>accepted</source>
        <translation>已接受</translation>
    </message>
    <message>
        <source>not judged</source>
        <translation>未判定</translation>
    </message>
    <message>
        <source>%1 stands for %2</source>
        <comment>a cluster of pins and their numbers</comment>
        <translation>%1 表示 %2</translation>
    </message>
    <message>
        <source>Nothing of this site can be drawn.</source>
        <translation>该工地没有可绘制的内容。</translation>
    </message>
    <message>
        <source>Numbers are those of the list. Houses are drawn with their stairs.</source>
        <translation>编号与列表一致。房屋连同楼梯一起绘制。</translation>
    </message>
    <message>
        <source>Drag moves the plan; Ctrl and the wheel, or two fingers, zoom it; so do + and −.</source>
        <translation>拖动可移动平面图；按住 Ctrl 并滚动滚轮、双指开合或按 + 与 − 可缩放。</translation>
    </message>
    <message>
        <source>No violations</source>
        <translation>无违规</translation>
    </message>
    <message numerus="yes">
        <source>Not judged: %n</source>
        <translation>
            <numerusform>未判定：%n 项</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Judged by no rule: %n</source>
        <translation>
            <numerusform>没有规则判定：%n 项</numerusform>
        </translation>
    </message>
    <message>
        <source>By clause</source>
        <translation>按条文</translation>
    </message>
    <message>
        <source>Clause</source>
        <translation>条文</translation>
    </message>
    <message>
        <source>Outcome</source>
        <translation>结果</translation>
    </message>
    <message>
        <source>What was judged: %1 of 1 rule</source>
        <translation>判定情况：1 条规则中已判定 %1 条</translation>
    </message>
    <message numerus="yes">
        <source>What was judged: %1 of %n rules</source>
        <translation>
            <numerusform>判定情况：%n 条规则中已判定 %1 条</numerusform>
        </translation>
    </message>
    <message>
        <source>Finds</source>
        <translation>查找内容</translation>
    </message>
    <message>
        <source>yard</source>
        <translation>堆场</translation>
    </message>
    <message>
        <source>house</source>
        <translation>房屋</translation>
    </message>
    <message>
        <source>substation</source>
        <translation>变配电设施</translation>
    </message>
    <message>
        <source>other element</source>
        <translation>其他构件</translation>
    </message>
    <message>
        <source>equipment</source>
        <translation>设备</translation>
    </message>
    <message>
        <source>Plan of %1</source>
        <translation>%1平面图</translation>
    </message>
    <message>
        <source>%1, not judged</source>
        <comment>an element</comment>
        <translation>%1，未判定</translation>
    </message>
    <message>
        <source>Violation %1</source>
        <translation>违规 %1</translation>
    </message>
    <message numerus="yes">
        <source>%n violations, from %1 on</source>
        <translation>
            <numerusform>从 %1 起的 %n 处违规</numerusform>
        </translation>
    </message>
    <message>
        <source>Rules, and what the rule file says of them</source>
        <translation>规则及规则文件的说明</translation>
    </message>
    <message>
        <source>Move %1 %2 north</source>
        <translation>将%1向北移动 %2</translation>
    </message>
    <message>
        <source>Move %1 %2 south</source>
        <translation>将%1向南移动 %2</translation>
    </message>
    <message>
        <source>Move %1 %2 east</source>
        <translation>将%1向东移动 %2</translation>
    </message>
    <message>
        <source>Move %1 %2 west</source>
        <translation>将%1向西移动 %2</translation>
    </message>
    <message>
        <source>Move %1 %2 north-east, %3 on each axis</source>
        <translation>将%1向东北移动 %2（每个坐标轴方向 %3）</translation>
    </message>
    <message>
        <source>Move %1 %2 south-east, %3 on each axis</source>
        <translation>将%1向东南移动 %2（每个坐标轴方向 %3）</translation>
    </message>
    <message>
        <source>Move %1 %2 north-west, %3 on each axis</source>
        <translation>将%1向西北移动 %2（每个坐标轴方向 %3）</translation>
    </message>
    <message>
        <source>Move %1 %2 south-west, %3 on each axis</source>
        <translation>将%1向西南移动 %2（每个坐标轴方向 %3）</translation>
    </message>
    <message>
        <source>Move %1 %2 east and %3 north</source>
        <translation>将%1向东移动 %2、向北移动 %3</translation>
    </message>
    <message>
        <source>Move %1 %2 east and %3 south</source>
        <translation>将%1向东移动 %2、向南移动 %3</translation>
    </message>
    <message>
        <source>Move %1 %2 west and %3 north</source>
        <translation>将%1向西移动 %2、向北移动 %3</translation>
    </message>
    <message>
        <source>Move %1 %2 west and %3 south</source>
        <translation>将%1向西移动 %2、向南移动 %3</translation>
    </message>
    <message>
        <source>Add an extinguisher box at (%1, %2) m</source>
        <translation>在（%1，%2）m 处增设灭火器箱</translation>
    </message>
    <message>
        <source>Add an object of class %1 and use &quot;%2&quot; at (%3, %4) m, %5 by %6</source>
        <translation>在（%3，%4）m 处增设类别为 %1、用途为“%2”的构件，尺寸 %5 × %6</translation>
    </message>
    <message>
        <source>Add an object of class %1 and use &quot;%2&quot; at (%3, %4) m, %5 by %6, with an extinguisher box beside it</source>
        <translation>在（%3，%4）m 处增设类别为 %1、用途为“%2”的构件，尺寸 %5 × %6，并在其旁设置灭火器箱</translation>
    </message>
    <message>
        <source>Turn %1 by %2° counter-clockwise</source>
        <translation>将%1逆时针旋转 %2°</translation>
    </message>
    <message>
        <source>Turn %1 by %2° clockwise</source>
        <translation>将%1顺时针旋转 %2°</translation>
    </message>
    <message>
        <source>Widen %1 to %2</source>
        <translation>将%1加宽至 %2</translation>
    </message>
    <message>
        <source>Raise %1 by %2</source>
        <translation>将%1抬高 %2</translation>
    </message>
    <message>
        <source>Lay %1 in the ground, %2 deep</source>
        <translation>将%1改为埋地敷设，埋深 %2</translation>
    </message>
    <message>
        <source>Give %1 a stair at each end</source>
        <translation>在%1两端各设一部楼梯</translation>
    </message>
    <message>
        <source>Give %1 %2 floors instead of %3</source>
        <translation>将%1的层数由 %3 层改为 %2 层</translation>
    </message>
    <message>
        <source>Shorten %1 to %2 from %3</source>
        <translation>将%1的长度由 %3 缩短至 %2</translation>
    </message>
    <message>
        <source>Set the partitions of %1 at %2 m along it</source>
        <translation>将%1的隔墙设在沿其长度 %2 m 处</translation>
    </message>
    <message>
        <source>Make %1 a fire road</source>
        <translation>将%1设为临时消防车道</translation>
    </message>
    <message>
        <source>%1 or %2</source>
        <translation>%1或%2</translation>
    </message>
    <message>
        <source>%1: %2 then measures %3</source>
        <translation>%1：此后 %2 的实测值为 %3</translation>
    </message>
    <message>
        <source>%1: %2 is then kept</source>
        <translation>%1：此后符合 %2</translation>
    </message>
    <message>
        <source>nothing within %1 helps</source>
        <translation>%1 范围内没有可行的办法</translation>
    </message>
    <message>
        <source>the rule takes the distance for granted, so that no move changes it</source>
        <translation>该规则取固定的间距，移动不会改变结果</translation>
    </message>
    <message>
        <source>no road of the site closes the loop as a further fire road</source>
        <translation>现场没有道路可作为临时消防车道使环路闭合</translation>
    </message>
    <message>
        <source>a fire road has to be added: an object of class road with &quot;fireRoad&quot;: true</source>
        <translation>需增设临时消防车道：类别为 road 且 &quot;fireRoad&quot;: true 的构件</translation>
    </message>
    <message>
        <source>neither of the elements may be moved</source>
        <translation>两个构件都不允许移动</translation>
    </message>
    <message>
        <source>this removes 1 other offence as well</source>
        <translation>同时消除另外 1 处不符合</translation>
    </message>
    <message numerus="yes">
        <source>this removes %n other offences as well</source>
        <translation>
            <numerusform>同时消除另外 %n 处违规</numerusform>
        </translation>
    </message>
    <message>
        <source>No suggestion: %1</source>
        <translation>无建议：%1</translation>
    </message>
    <message>
        <source>Suggestion: %1</source>
        <translation>建议：%1</translation>
    </message>
    <message>
        <source>and then: %1</source>
        <translation>然后：%1</translation>
    </message>
    <message>
        <source>No change helps</source>
        <translation>没有可行的修改</translation>
    </message>
    <message>
        <source>1 change</source>
        <translation>1 项修改</translation>
    </message>
    <message numerus="yes">
        <source>%n changes, one after the other</source>
        <translation>
            <numerusform>依次 %n 项修改</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing remains</source>
        <translation>无遗留问题</translation>
    </message>
    <message>
        <source>What remains</source>
        <translation>遗留问题</translation>
    </message>
    <message>
        <source>1 further doubt, see &quot;firecheck lint-site&quot;</source>
        <translation>另有 1 处疑问，见“firecheck lint-site”</translation>
    </message>
    <message numerus="yes">
        <source>%n further doubts, see &quot;firecheck lint-site&quot;</source>
        <translation>
            <numerusform>另有 %n 处疑问，见“firecheck lint-site”</numerusform>
        </translation>
    </message>
    <message>
        <source>expected blocks within at most %1 others, and none that holds itself</source>
        <translation>块的嵌套不应超过 %1 层，且块不应包含自身</translation>
    </message>
    <message>
        <source>the drawing is read in %1, in which half of its houses, yards and routes are at most %2 m long; &quot;unit&quot; in a table of layers decides</source>
        <translation>图纸按 %1 读取，据此半数房屋、堆场和线路的长度不超过 %2 m；以图层表中的“unit”为准</translation>
    </message>
    <message>
        <source>%1: expected at most 16 kB beside what its shape says, found %2 kB; a drawing cannot keep it</source>
        <translation>%1：图形之外的数据应不超过 16 kB，实为 %2 kB，图纸无法保存</translation>
    </message>
    <message>
        <source>the site as a whole</source>
        <translation>工地整体</translation>
    </message>
    <message>
        <source>%1 %2 on layer &quot;%3&quot; not taken up: %4</source>
        <translation>图层“%3”上的 %1 个 %2 未采用：%4</translation>
    </message>
    <message>
        <source>%1 %2 on layer &quot;%3&quot; without &quot;%4&quot;: %5 is assumed</source>
        <translation>图层“%3”上的 %1 个 %2 没有“%4”：按 %5 计</translation>
    </message>
    <message>
        <source>%1 attributes &quot;%2&quot; of block &quot;%3&quot; not taken up: their elements have no such key</source>
        <translation>块“%3”的 %1 个属性“%2”未采用：其构件没有此键</translation>
    </message>
    <message>
        <source>%1 doors on layer &quot;%2&quot; stand in no wall</source>
        <translation>图层“%2”上的 %1 个大门不在任何围墙上</translation>
    </message>
    <message>
        <source>1 element has no handle, or that of another; it was given a new one</source>
        <translation>1 个构件没有句柄或句柄重复，已另给新句柄</translation>
    </message>
    <message numerus="yes">
        <source>%n elements have no handle, or that of another; they were given new ones</source>
        <translation>
            <numerusform>%n 个构件没有句柄或句柄重复，已另给新句柄</numerusform>
        </translation>
    </message>
    <message>
        <source>it is in paper space</source>
        <translation>位于图纸空间</translation>
    </message>
    <message>
        <source>it is invisible, or its layer is off or frozen</source>
        <translation>不可见，或所在图层已关闭或冻结</translation>
    </message>
    <message>
        <source>expected blocks that come to at most %1 entities</source>
        <translation>块展开后的图元应不超过 %1 个</translation>
    </message>
    <message>
        <source>its block is not in the drawing</source>
        <translation>图纸中没有它的块</translation>
    </message>
    <message>
        <source>it refers to another drawing</source>
        <translation>引用的是另一张图纸</translation>
    </message>
    <message>
        <source>it does not lie in the plan</source>
        <translation>不在平面内</translation>
    </message>
    <message>
        <source>the drawing does not say how its texts are encoded; they were read as %1; --encoding decides</source>
        <translation>图纸未说明文字的编码，已按 %1 读取；可用 --encoding 指定</translation>
    </message>
    <message>
        <source>the drawing says that its texts are %1, which they are not; they were read as %2; --encoding decides</source>
        <translation>图纸称文字为 %1 编码，实则不是，已按 %2 读取；可用 --encoding 指定</translation>
    </message>
    <message>
        <source>expected group 10 of a vertex before group %1</source>
        <translation>组码 %1 之前应有顶点的组码 10</translation>
    </message>
    <message>
        <source>%1: expected group %2</source>
        <translation>%1：缺少组码 %2</translation>
    </message>
    <message>
        <source>INSERT: expected an array of at most %1 cells</source>
        <translation>INSERT：阵列应不超过 %1 格</translation>
    </message>
    <message>
        <source>expected a group code of DXF, found &quot;%1&quot;</source>
        <translation>应为 DXF 组码，实为“%1”</translation>
    </message>
    <message>
        <source>expected a finite number for group %1, found &quot;%2&quot;</source>
        <translation>组码 %1 应为有限的数，实为“%2”</translation>
    </message>
    <message>
        <source>expected a whole number for group %1, found &quot;%2&quot;</source>
        <translation>组码 %1 应为整数，实为“%2”</translation>
    </message>
    <message>
        <source>expected the end of the drawing, &quot;EOF&quot;: the file is cut off here</source>
        <translation>应有图纸结尾“EOF”：文件在此中断</translation>
    </message>
    <message>
        <source>expected a SECTION of a DXF drawing, found &quot;%1&quot;</source>
        <translation>应为 DXF 图纸的 SECTION，实为“%1”</translation>
    </message>
    <message>
        <source>expected the name of the section in group 2</source>
        <translation>组码 2 应为段的名称</translation>
    </message>
    <message>
        <source>expected ENDSEC at the end of section %1</source>
        <translation>段 %1 的结尾应为 ENDSEC</translation>
    </message>
    <message>
        <source>expected a drawing of at most %1 entities</source>
        <translation>图纸的图元应不超过 %1 个</translation>
    </message>
    <message>
        <source>expected an ASCII DXF drawing, found a binary one; save it as ASCII DXF</source>
        <translation>应为 ASCII 格式的 DXF 图纸，实为二进制格式；请另存为 ASCII DXF</translation>
    </message>
    <message>
        <source>expected a DXF drawing, found DWG; save it as DXF</source>
        <translation>应为 DXF 图纸，实为 DWG；请另存为 DXF</translation>
    </message>
    <message>
        <source>expected an ASCII DXF drawing, found a NUL byte</source>
        <translation>应为 ASCII 格式的 DXF 图纸，却含有 NUL 字节</translation>
    </message>
    <message>
        <source>a text or a list of texts</source>
        <translation>一个文本或文本列表</translation>
    </message>
    <message>
        <source>expected &quot;%1&quot; or one of %2</source>
        <translation>应为“%1”或 %2 之一</translation>
    </message>
    <message>
        <source>a list of rows</source>
        <translation>行的列表</translation>
    </message>
    <message>
        <source>expected &quot;names&quot;, &quot;layers&quot; or &quot;blocks&quot;</source>
        <translation>缺少“names”、“layers”或“blocks”</translation>
    </message>
    <message>
        <source>expected the key &quot;class&quot; (what the elements are, or &quot;ignore&quot;)</source>
        <translation>缺少键“class”（构件是什么，或“ignore”）</translation>
    </message>
    <message>
        <source>a table of layers</source>
        <translation>图层表</translation>
    </message>
    <message>
        <source>the drawing&apos;s unit has the number %1, which no unit of sites has; mm is assumed</source>
        <translation>图纸单位的编号为 %1，不是工地所用的单位，按 mm 计</translation>
    </message>
    <message>
        <source>it names no outline</source>
        <translation>不是任何轮廓的名称</translation>
    </message>
    <message>
        <source>elements of this kind are not drawn so</source>
        <translation>此类构件不这样绘制</translation>
    </message>
    <message>
        <source>extended data of the %1: %2</source>
        <translation>%1 的扩展数据：%2</translation>
    </message>
    <message>
        <source>expected the &quot;class&quot; of an object of site files</source>
        <translation>应有工地文件中物体的“class”</translation>
    </message>
    <message>
        <source>expected an object for &quot;%1&quot;</source>
        <translation>“%1”应为对象</translation>
    </message>
    <message>
        <source>it does not lie in the plan, or its scale distorts it</source>
        <translation>不在平面内，或比例使其变形</translation>
    </message>
    <message>
        <source>nothing tells what it is</source>
        <translation>没有说明它是什么</translation>
    </message>
    <message>
        <source>such entities are not read</source>
        <translation>不读取此类图元</translation>
    </message>
    <message>
        <source>it closes no outline</source>
        <translation>未围成轮廓</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <comment>measured value, limit</comment>
        <translation>%1（%2）</translation>
    </message>
    <message>
        <source>%1: 1 violation</source>
        <translation>%1：1 处违规</translation>
    </message>
    <message numerus="yes">
        <source>%1: %n violations</source>
        <translation>
            <numerusform>%1：%n 处违规</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 (accepted: %2)</source>
        <translation>%1（已接受：%2）</translation>
    </message>
    <message>
        <source>%1 [handle %2]</source>
        <translation>%1 [句柄 %2]</translation>
    </message>
    <message>
        <source>doubt: %1 [%2]</source>
        <comment>message, code</comment>
        <translation>疑问：%1 [%2]</translation>
    </message>
    <message>
        <source>%1 was not measured: %2</source>
        <comment>element, why</comment>
        <translation>%1 未被量测：%2</translation>
    </message>
    <message>
        <source>%1 was not measured: %2; nor was 1 other</source>
        <comment>element, why</comment>
        <translation>%1 未被量测：%2；另有 1 个也未被量测</translation>
    </message>
    <message numerus="yes">
        <source>%1 was not measured: %2; nor were %n others</source>
        <comment>element, why</comment>
        <translation>
            <numerusform>%1 未被量测：%2；另有 %n 个也未被量测</numerusform>
        </translation>
    </message>
    <message>
        <source>more than any site has</source>
        <translation>超出任何工地的距离</translation>
    </message>
    <message>
        <source>%1, of %2, which is not checked</source>
        <comment>acceptance, site file</comment>
        <translation>%1（属于未检查的 %2）</translation>
    </message>
    <message>
        <source>nothing to compare with that can be measured</source>
        <translation>没有可量测的构件可供比较</translation>
    </message>
    <message>
        <source>1 more violation of the same rule by the same element</source>
        <translation>同一构件另有 1 处违反同一规则</translation>
    </message>
    <message numerus="yes">
        <source>%n more violations of the same rule by the same element</source>
        <translation>
            <numerusform>同一构件另有 %n 处违反同一规则</numerusform>
        </translation>
    </message>
    <message>
        <source>expected at most %1 attributes in a tag</source>
        <translation>每个标签最多应有 %1 个属性</translation>
    </message>
    <message>
        <source>a rule file</source>
        <translation>规则文件</translation>
    </message>
    <message>
        <source>cannot be copied: %1</source>
        <translation>无法复制：%1</translation>
    </message>
    <message>
        <source>where it would comply</source>
        <translation>满足要求的位置</translation>
    </message>
    <message>
        <source>expected a handle, a number as a text</source>
        <translation>此处应为句柄，即以文本写出的数字</translation>
    </message>
    <message>
        <source>an object with &quot;object&quot;</source>
        <translation>含有“object”的对象</translation>
    </message>
    <message>
        <source>the site has been changed elsewhere since</source>
        <translation>场地已在别处更改</translation>
    </message>
    <message>
        <source>there is no such finding any more</source>
        <translation>该不符合项已不存在</translation>
    </message>
    <message>
        <source>there is no such request</source>
        <translation>没有这样的请求</translation>
    </message>
    <message>
        <source>Changes</source>
        <translation>更改</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>撤销</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>重做</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>not saved</source>
        <translation>未保存</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>添加</translation>
    </message>
    <message>
        <source>Class of the new element</source>
        <translation>新构件的类别</translation>
    </message>
    <message>
        <source>Grid</source>
        <translation>网格</translation>
    </message>
    <message>
        <source>Step of the grid</source>
        <translation>网格间距</translation>
    </message>
    <message>
        <source>Just far enough</source>
        <translation>贴合所需间距</translation>
    </message>
    <message>
        <source>Required distances</source>
        <translation>所需间距</translation>
    </message>
    <message>
        <source>Plan</source>
        <translation>平面图</translation>
    </message>
    <message>
        <source>Plan of the site</source>
        <translation>场地平面图</translation>
    </message>
    <message>
        <source>Drag moves an element or the plan; Ctrl and the wheel, or two fingers, zoom.</source>
        <translation>拖动可移动构件或平面图；按住 Ctrl 滚动滚轮或用双指可缩放。</translation>
    </message>
    <message>
        <source>no element</source>
        <translation>未选构件</translation>
    </message>
    <message>
        <source>Nothing selected</source>
        <translation>未选中任何构件</translation>
    </message>
    <message>
        <source>Selected: %1. Violations: %2.</source>
        <translation>已选中：%1。不符合：%2 处。</translation>
    </message>
    <message>
        <source>Turn left</source>
        <translation>左转</translation>
    </message>
    <message>
        <source>Turn right</source>
        <translation>右转</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>复制</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>删除</translation>
    </message>
    <message>
        <source>More</source>
        <translation>更多</translation>
    </message>
    <message>
        <source>This is no value that can be read.</source>
        <translation>无法识别这个值。</translation>
    </message>
    <message>
        <source>%1 violations</source>
        <translation>%1 处不符合</translation>
    </message>
    <message>
        <source>all rules</source>
        <translation>所有规则</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>搜索</translation>
    </message>
    <message>
        <source>Of the selected element</source>
        <translation>仅选中的构件</translation>
    </message>
    <message>
        <source>Showing %1 of %2</source>
        <translation>显示 %1 / %2 处</translation>
    </message>
    <message>
        <source>Suggest</source>
        <translation>建议</translation>
    </message>
    <message>
        <source>Look for a change that would remove this</source>
        <translation>寻找可消除此处不符合的更改</translation>
    </message>
    <message>
        <source>Take it</source>
        <translation>采纳</translation>
    </message>
    <message>
        <source>Nothing was found that would help.</source>
        <translation>没有找到可行的更改。</translation>
    </message>
    <message>
        <source>Doubts about the site</source>
        <translation>场地疑点</translation>
    </message>
    <message>
        <source>Undone.</source>
        <translation>已撤销。</translation>
    </message>
    <message>
        <source>Done again.</source>
        <translation>已重做。</translation>
    </message>
    <message>
        <source>Done: %1</source>
        <translation>已完成：%1</translation>
    </message>
    <message>
        <source>Removed: %1</source>
        <translation>已删除：%1</translation>
    </message>
    <message>
        <source>Saved.</source>
        <translation>已保存。</translation>
    </message>
    <message>
        <source>Gone: %1.</source>
        <translation>消除：%1 处。</translation>
    </message>
    <message>
        <source>New: %1.</source>
        <translation>新增：%1 处。</translation>
    </message>
    <message>
        <source>This could not be done (%1)</source>
        <translation>操作未能完成（%1）</translation>
    </message>
    <message>
        <source>The process that holds the site does not answer any more. Changes that were not saved are lost with it when it has ended; the page still has a copy of them.</source>
        <translation>保存场地数据的进程不再响应。如果它已经结束，未保存的更改将随之丢失；本页面仍有一份副本。</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>重试</translation>
    </message>
    <message>
        <source>Download a copy</source>
        <translation>下载副本</translation>
    </message>
    <message>
        <source>Dismiss</source>
        <translation>关闭提示</translation>
    </message>
    <message>
        <source>Keys and pointer</source>
        <translation>键盘与指针</translation>
    </message>
    <message>
        <source>to the plan; there Enter selects an element, Tab and Shift+Tab go on to others</source>
        <translation>进入平面图；按 Enter 选中构件，再按 Tab 和 Shift+Tab 选择其他构件</translation>
    </message>
    <message>
        <source>from the selected element to its parameters</source>
        <translation>从选中的构件转到其参数</translation>
    </message>
    <message>
        <source>move the selected element by a step of the grid, with Shift by 0.01 m; without one they move the plan</source>
        <translation>将选中的构件移动一个网格间距，按住 Shift 移动 0.01 m；未选中构件时移动平面图</translation>
    </message>
    <message>
        <source>turn by 15 degrees; the round handle turns by 5, with Shift by 1</source>
        <translation>旋转 15 度；圆形手柄每次旋转 5 度，按住 Shift 为 1 度</translation>
    </message>
    <message>
        <source>remove</source>
        <translation>删除</translation>
    </message>
    <message>
        <source>copy</source>
        <translation>复制</translation>
    </message>
    <message>
        <source>undo and redo</source>
        <translation>撤销和重做</translation>
    </message>
    <message>
        <source>save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>next and previous violation</source>
        <translation>下一处和上一处不符合</translation>
    </message>
    <message>
        <source>grid on and off</source>
        <translation>打开或关闭网格</translation>
    </message>
    <message>
        <source>hold what is dragged just as far from others as the rules require, on and off</source>
        <translation>使拖动的构件恰好保持规则所需的间距，打开或关闭</translation>
    </message>
    <message>
        <source>show the required distances around the selected element, on and off</source>
        <translation>显示选中构件周围所需的间距，打开或关闭</translation>
    </message>
    <message>
        <source>zoom, and show the whole plan</source>
        <translation>缩放，以及显示整张平面图</translation>
    </message>
    <message>
        <source>end a drag as if it had not been, or select nothing</source>
        <translation>取消拖动，或取消选中</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>note</source>
        <translation>备注</translation>
    </message>
    <message>
        <source>identifier</source>
        <translation>标识符</translation>
    </message>
    <message>
        <source>extents</source>
        <translation>范围</translation>
    </message>
    <message>
        <source>refuses to open</source>
        <translation>无法打开</translation>
    </message>
    <message>
        <source>second view</source>
        <translation>第二视图</translation>
    </message>
    <message>
        <source>use</source>
        <translation>用途</translation>
    </message>
    <message>
        <source>number of floors</source>
        <translation>层数</translation>
    </message>
    <message>
        <source>stairs</source>
        <translation>楼梯</translation>
    </message>
    <message>
        <source>gallery side</source>
        <translation>走廊侧</translation>
    </message>
    <message>
        <source>floor depth</source>
        <translation>楼层进深</translation>
    </message>
    <message>
        <source>partitions</source>
        <translation>隔墙位置</translation>
    </message>
    <message>
        <source>center</source>
        <translation>中心</translation>
    </message>
    <message>
        <source>length</source>
        <translation>长度</translation>
    </message>
    <message>
        <source>depth</source>
        <translation>进深</translation>
    </message>
    <message>
        <source>height</source>
        <translation>高度</translation>
    </message>
    <message>
        <source>width</source>
        <translation>宽度</translation>
    </message>
    <message>
        <source>angle</source>
        <translation>角度</translation>
    </message>
    <message>
        <source>circle</source>
        <translation>圆</translation>
    </message>
    <message>
        <source>polyline</source>
        <translation>多段线</translation>
    </message>
    <message>
        <source>elevation</source>
        <translation>标高</translation>
    </message>
    <message>
        <source>shape kind</source>
        <translation>形状类型</translation>
    </message>
    <message>
        <source>footprint</source>
        <translation>占地轮廓</translation>
    </message>
    <message>
        <source>start</source>
        <translation>起点</translation>
    </message>
    <message>
        <source>end</source>
        <translation>终点</translation>
    </message>
    <message>
        <source>through</source>
        <translation>经过点</translation>
    </message>
    <message>
        <source>outline</source>
        <translation>轮廓</translation>
    </message>
    <message>
        <source>start elevation</source>
        <translation>起点标高</translation>
    </message>
    <message>
        <source>end elevation</source>
        <translation>终点标高</translation>
    </message>
    <message>
        <source>radius</source>
        <translation>半径</translation>
    </message>
    <message>
        <source>straight</source>
        <translation>直线</translation>
    </message>
    <message>
        <source>position</source>
        <translation>位置</translation>
    </message>
    <message>
        <source>jib height</source>
        <translation>起重臂高度</translation>
    </message>
    <message>
        <source>front jib length</source>
        <translation>起重臂长度</translation>
    </message>
    <message>
        <source>counter jib length</source>
        <translation>平衡臂长度</translation>
    </message>
    <message>
        <source>jib inclination</source>
        <translation>起重臂倾角</translation>
    </message>
    <message>
        <source>mast width</source>
        <translation>塔身宽度</translation>
    </message>
    <message>
        <source>jib width</source>
        <translation>起重臂宽度</translation>
    </message>
    <message>
        <source>jib depth</source>
        <translation>起重臂截面高度</translation>
    </message>
    <message>
        <source>draw type</source>
        <translation>绘制方式</translation>
    </message>
    <message>
        <source>leaf width</source>
        <translation>门扇宽度</translation>
    </message>
    <message>
        <source>post width</source>
        <translation>门柱宽度</translation>
    </message>
    <message>
        <source>post depth</source>
        <translation>门柱进深</translation>
    </message>
    <message>
        <source>doors</source>
        <translation>门</translation>
    </message>
    <message>
        <source>parameters known</source>
        <translation>参数已知</translation>
    </message>
    <message>
        <source>future house</source>
        <translation>在建工程</translation>
    </message>
    <message>
        <source>total step down substation</source>
        <translation>总降压变电站</translation>
    </message>
    <message>
        <source>template yard</source>
        <translation>模板堆场</translation>
    </message>
    <message>
        <source>electrical mechanical yard</source>
        <translation>机电材料堆场</translation>
    </message>
    <message>
        <source>yard mesh</source>
        <translation>网格堆场</translation>
    </message>
    <message>
        <source>service cable</source>
        <translation>架空线路</translation>
    </message>
    <message>
        <source>door</source>
        <translation>门</translation>
    </message>
    <message>
        <source>model</source>
        <translation>三维模型</translation>
    </message>
    <message>
        <source>sizeless model</source>
        <translation>无尺寸三维模型</translation>
    </message>
    <message>
        <source>drawing</source>
        <translation>图形对象</translation>
    </message>
    <message>
        <source>left end</source>
        <translation>左端</translation>
    </message>
    <message>
        <source>right end</source>
        <translation>右端</translation>
    </message>
    <message>
        <source>both ends</source>
        <translation>两端</translation>
    </message>
    <message>
        <source>along side</source>
        <translation>沿长边</translation>
    </message>
    <message>
        <source>none</source>
        <translation>无</translation>
    </message>
    <message>
        <source>front</source>
        <translation>前侧</translation>
    </message>
    <message>
        <source>rear</source>
        <translation>后侧</translation>
    </message>
    <message>
        <source>general</source>
        <translation>一般</translation>
    </message>
    <message>
        <source>hot work</source>
        <translation>动火作业</translation>
    </message>
    <message>
        <source>formwork</source>
        <translation>模板</translation>
    </message>
    <message>
        <source>woodworking</source>
        <translation>木工</translation>
    </message>
    <message>
        <source>mechanical</source>
        <translation>机电</translation>
    </message>
    <message>
        <source>building</source>
        <translation>建筑</translation>
    </message>
    <message>
        <source>household</source>
        <translation>生活</translation>
    </message>
    <message>
        <source>plate</source>
        <translation>立板</translation>
    </message>
    <message>
        <source>sheet</source>
        <translation>薄片</translation>
    </message>
    <message>
        <source>rectangle</source>
        <translation>矩形</translation>
    </message>
    <message>
        <source>arc</source>
        <translation>圆弧</translation>
    </message>
    <message>
        <source>expected an object</source>
        <translation>此处应为对象</translation>
    </message>
    <message>
        <source>expected the handle %1, which no change takes away</source>
        <translation>句柄应为 %1，任何更改都不能去掉它</translation>
    </message>
    <message>
        <source>no object has the handle %1</source>
        <translation>没有句柄为 %1 的对象</translation>
    </message>
    <message>
        <source>expected a file that a site can be saved to</source>
        <translation>此处应为可以保存场地的文件</translation>
    </message>
    <message>
        <source>somebody else has changed the file since it was read</source>
        <translation>文件在读取之后已被他人更改</translation>
    </message>
    <message>
        <source>cannot be written: %1</source>
        <translation>无法写入：%1</translation>
    </message>
    <message>
        <source>End</source>
        <translation>结束</translation>
    </message>
    <message>
        <source>End the program that holds the site</source>
        <translation>结束保存此场地的程序</translation>
    </message>
    <message>
        <source>Changes are not saved, and would be lost. End all the same?</source>
        <translation>更改尚未保存，结束后将丢失。仍要结束吗？</translation>
    </message>
    <message>
        <source>The program has ended; this page can be closed.</source>
        <translation>程序已结束，可以关闭此页面。</translation>
    </message>
    <message>
        <source>one that the report only counts: %1</source>
        <comment>violation, handles</comment>
        <translation>报告中仅计数的一处：%1</translation>
    </message>
    <message>
        <source>%1 attributes &quot;CLASS&quot; of block &quot;%2&quot; not taken up: &quot;%3&quot; is no class of objects</source>
        <translation>块“%2”的 %1 个属性“CLASS”未采用：没有名为“%3”的对象类别</translation>
    </message>
    <message>
        <source>not all bytes of the drawing&apos;s texts are %1, as it says; those that are not became &quot;%2&quot;; --encoding decides</source>
        <translation>图纸文字并非如其所称全部为 %1 编码，无法读取的字节以“%2”代替；可用 --encoding 指定</translation>
    </message>
    <message>
        <source>%1: expected a radius of at least 0</source>
        <translation>%1：半径不应小于 0</translation>
    </message>
    <message>
        <source>it is part of a block that is one element</source>
        <translation>属于一个整体作为构件的块</translation>
    </message>
    <message>
        <source>no free place was found for an object of class %1 and use &quot;%2&quot;</source>
        <translation>未找到可供类别为 %1、用途为“%2”的构件使用的空位</translation>
    </message>
    <message>
        <source>the elements are to stay as they are</source>
        <translation>这些构件按要求保持不变</translation>
    </message>
    <message>
        <source>a gate&apos;s place is its wall&apos;s &quot;doors&quot; entry and is not searched</source>
        <translation>出入口的位置由所在围墙的 &quot;doors&quot; 项给出，不作搜索</translation>
    </message>
    <message>
        <source>the element is to stay as it is</source>
        <translation>该构件按要求保持不变</translation>
    </message>
    <message>
        <source>nothing helps</source>
        <translation>没有可行的办法</translation>
    </message>
    <message>
        <source>%1: every way breaks %2, or stands in %3</source>
        <translation>%1：每种办法都违反 %2，或与%3重叠</translation>
    </message>
    <message>
        <source>%1: every way breaks %2</source>
        <translation>%1：每种办法都违反 %2</translation>
    </message>
    <message>
        <source>%1: every way stands in %2</source>
        <translation>%1：每种办法都与%2重叠</translation>
    </message>
</context>
</TS>
