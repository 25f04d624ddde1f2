<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ar">
<context>
    <name>BrowserExtPage</name>
    <message>
        <source>正在移除「%1」... (%2/%3)</source>
        <translation>جارٍ إزالة «%1»... (%2/%3)</translation>
    </message>
    <message>
        <source>未找到浏览器扩展</source>
        <translation>لم يتم العثور على ملحقات للمستعرض</translation>
    </message>
    <message>
        <source>浏览器扩展</source>
        <translation>ملحقات المستعرض</translation>
    </message>
    <message>
        <source>搜索扩展...</source>
        <translation>البحث في الملحقات...</translation>
    </message>
    <message>
        <source>↻ 刷新</source>
        <translation>↻ تحديث</translation>
    </message>
    <message>
        <source>请稍候...</source>
        <translation>يرجى الانتظار...</translation>
    </message>
    <message>
        <source>正在扫描浏览器扩展...</source>
        <translation>جارٍ فحص ملحقات المستعرض...</translation>
    </message>
    <message>
        <source>正在扫描...</source>
        <translation>جارٍ الفحص...</translation>
    </message>
    <message>
        <source>显示 %1 / %2 个扩展</source>
        <translation>الملحقات المعروضة: %1 / %2</translation>
    </message>
    <message>
        <source>共 %1 个扩展</source>
        <translation>إجمالي الملحقات: %1</translation>
    </message>
    <message>
        <source>🗑  移除所选 (%1)</source>
        <translation>🗑  إزالة المحدد (%1)</translation>
    </message>
    <message>
        <source>🗑  移除所选</source>
        <translation>🗑  إزالة المحدد</translation>
    </message>
    <message>
        <source>浏览器正在运行</source>
        <translation>المستعرض قيد التشغيل</translation>
    </message>
    <message>
        <source>以下浏览器有后台进程仍在运行：&lt;br&gt;&lt;b&gt;%1&lt;/b&gt;</source>
        <translation>لا تزال عمليات في الخلفية قيد التشغيل للمستعرضات التالية:&lt;br&gt;&lt;b&gt;%1&lt;/b&gt;</translation>
    </message>
    <message>
        <source>、</source>
        <translation>، </translation>
    </message>
    <message>
        <source>点击「强制结束」自动终止所有相关进程后继续移除，或手动关闭后点「重试」。</source>
        <translation>انقر فوق «فرض الإنهاء» لإنهاء كل العمليات المرتبطة تلقائياً ومتابعة الإزالة، أو أغلقها يدوياً ثم انقر فوق «إعادة المحاولة».</translation>
    </message>
    <message>
        <source>&lt;b&gt;%1&lt;/b&gt; 有后台进程仍在运行。</source>
        <translation>لا تزال عمليات &lt;b&gt;%1&lt;/b&gt; قيد التشغيل في الخلفية.</translation>
    </message>
    <message>
        <source>关闭浏览器窗口后，后台进程可能仍然存在，请点击「强制结束」自动终止，或手动关闭后点「重试」。</source>
        <translation>قد تبقى عمليات في الخلفية بعد إغلاق نافذة المستعرض. انقر فوق «فرض الإنهاء» لإنهائها تلقائياً، أو أغلقها يدوياً ثم انقر فوق «إعادة المحاولة».</translation>
    </message>
    <message>
        <source>强制结束并移除</source>
        <translation>فرض الإنهاء والإزالة</translation>
    </message>
    <message>
        <source>重试</source>
        <translation>إعادة المحاولة</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>إلغاء الأمر</translation>
    </message>
    <message>
        <source>无法完全终止：%1&lt;br&gt;请在任务管理器中手动结束后重试。</source>
        <translation>تعذر الإنهاء بالكامل: %1&lt;br&gt;يرجى إنهاؤها يدوياً من «إدارة المهام» ثم إعادة المحاولة.</translation>
    </message>
    <message>
        <source>无法完全终止 %1，请手动在任务管理器中结束所有 %2 进程后重试。</source>
        <translation>تعذر إنهاء %1 بالكامل. يرجى إنهاء كل عمليات %2 يدوياً من «إدارة المهام» ثم إعادة المحاولة.</translation>
    </message>
    <message>
        <source>无法终止进程</source>
        <translation>تعذر إنهاء العملية</translation>
    </message>
    <message>
        <source>移除扩展</source>
        <translation>إزالة الملحق</translation>
    </message>
    <message>
        <source>确定要移除 &lt;b&gt;%1&lt;/b&gt;？&lt;br&gt;&lt;span style=&apos;font-size:11px; color:#94a3b8;&apos;&gt;将打开 %2 扩展管理页并复制扩展 ID&lt;/span&gt;</source>
        <translation>هل تريد بالتأكيد إزالة &lt;b&gt;%1&lt;/b&gt;؟&lt;br&gt;&lt;span style=&apos;font-size:11px; color:#94a3b8;&apos;&gt;ستُفتح صفحة إدارة الملحقات في %2 وسيُنسخ معرّف الملحق&lt;/span&gt;</translation>
    </message>
    <message>
        <source>正在移除扩展...</source>
        <translation>جارٍ إزالة الملحق...</translation>
    </message>
    <message>
        <source>✓ 已移除「%1」</source>
        <translation>✓ تمت إزالة «%1»</translation>
    </message>
    <message>
        <source>自动移除失败</source>
        <translation>تعذرت الإزالة التلقائية</translation>
    </message>
    <message>
        <source>无法自动移除 &lt;b&gt;%1&lt;/b&gt;</source>
        <translation>تعذرت إزالة &lt;b&gt;%1&lt;/b&gt; تلقائياً</translation>
    </message>
    <message>
        <source>已打开 %1 扩展管理页面。&lt;br&gt;扩展 ID 已复制到剪贴板：&lt;br&gt;&lt;span style=&apos;font-family:monospace;color:#2563eb;&apos;&gt;%2&lt;/span&gt;&lt;br&gt;&lt;br&gt;手动移除后请点击&lt;b&gt;刷新&lt;/b&gt;。</source>
        <translation>تم فتح صفحة إدارة الملحقات في %1.&lt;br&gt;تم نسخ معرّف الملحق إلى الحافظة:&lt;br&gt;&lt;span style=&apos;font-family:monospace;color:#2563eb;&apos;&gt;%2&lt;/span&gt;&lt;br&gt;&lt;br&gt;بعد إزالته يدوياً، انقر فوق &lt;b&gt;تحديث&lt;/b&gt;.</translation>
    </message>
    <message>
        <source>批量移除</source>
        <translation>إزالة مجمّعة</translation>
    </message>
    <message>
        <source>确定要移除选中的 &lt;b&gt;%1&lt;/b&gt; 个扩展？</source>
        <translation>هل تريد بالتأكيد إزالة الملحقات المحددة (&lt;b&gt;%1&lt;/b&gt;)؟</translation>
    </message>
    <message>
        <source>正在移除 %1 个扩展...</source>
        <translation>جارٍ إزالة الملحقات (%1)...</translation>
    </message>
    <message>
        <source>移除完成</source>
        <translation>اكتملت الإزالة</translation>
    </message>
    <message>
        <source>成功移除 &lt;b&gt;%1&lt;/b&gt; 个扩展。</source>
        <translation>تمت إزالة &lt;b&gt;%1&lt;/b&gt; من الملحقات بنجاح.</translation>
    </message>
    <message>
        <source>列表将自动刷新。</source>
        <translation>سيتم تحديث القائمة تلقائياً.</translation>
    </message>
    <message>
        <source>部分移除失败</source>
        <translation>فشلت إزالة بعض العناصر</translation>
    </message>
    <message>
        <source>成功 &lt;b&gt;%1&lt;/b&gt; 个，失败 &lt;b&gt;%2&lt;/b&gt; 个。</source>
        <translation>نجح: &lt;b&gt;%1&lt;/b&gt;، فشل: &lt;b&gt;%2&lt;/b&gt;.</translation>
    </message>
    <message>
        <source>失败项（请手动前往浏览器移除）：&lt;br&gt;%1</source>
        <translation>العناصر التي فشلت إزالتها (يرجى إزالتها يدوياً من المستعرض):&lt;br&gt;%1</translation>
    </message>
</context>
<context>
    <name>BrowserExtRow</name>
    <message>
        <source>已禁用</source>
        <translation>معطّل</translation>
    </message>
    <message>
        <source>移除</source>
        <translation>إزالة</translation>
    </message>
</context>
<context>
    <name>BrowserGroupWidget</name>
    <message>
        <source>%1 个扩展</source>
        <translation>الملحقات: %1</translation>
    </message>
</context>
<context>
    <name>CleanupPage</name>
    <message>
        <source>磁盘清理</source>
        <translation>تنظيف القرص</translation>
    </message>
    <message>
        <source>扫描系统垃圾文件，安全释放磁盘空间</source>
        <translation>فحص ملفات النظام غير الضرورية وتحرير مساحة القرص بأمان</translation>
    </message>
    <message>
        <source>正在扫描…</source>
        <translation>جارٍ الفحص…</translation>
    </message>
    <message>
        <source>请稍候</source>
        <translation>يرجى الانتظار</translation>
    </message>
    <message>
        <source>🔄 重新扫描</source>
        <translation>🔄 إعادة الفحص</translation>
    </message>
    <message>
        <source>☑ 全选</source>
        <translation>☑ تحديد الكل</translation>
    </message>
    <message>
        <source>🗑 清理选中项</source>
        <translation>🗑 تنظيف العناصر المحددة</translation>
    </message>
    <message>
        <source>扫描完成</source>
        <translation>اكتمل الفحص</translation>
    </message>
    <message>
        <source>✓ 清理完成，释放 &lt;b&gt;%1&lt;/b&gt;</source>
        <translation>✓ اكتمل التنظيف، تم تحرير &lt;b&gt;%1&lt;/b&gt;</translation>
    </message>
    <message>
        <source>☐ 取消全选</source>
        <translation>☐ إلغاء تحديد الكل</translation>
    </message>
    <message>
        <source>已选 &lt;b&gt;%1&lt;/b&gt; 类  ·  预计释放 &lt;b&gt;%2&lt;/b&gt;</source>
        <translation>الفئات المحددة: &lt;b&gt;%1&lt;/b&gt;  ·  المساحة المتوقع تحريرها: &lt;b&gt;%2&lt;/b&gt;</translation>
    </message>
    <message>
        <source>发现 %1 类可清理文件，共 %2</source>
        <translation>تم العثور على ملفات قابلة للتنظيف في %1 من الفئات، بإجمالي %2</translation>
    </message>
    <message>
        <source>已选 %1 类  ·  预计释放 %2</source>
        <translation>الفئات المحددة: %1  ·  المساحة المتوقع تحريرها: %2</translation>
    </message>
</context>
<context>
    <name>CleanupRowWidget</name>
    <message>
        <source>扫描中…</source>
        <translation>جارٍ الفحص…</translation>
    </message>
</context>
<context>
    <name>CleanupScanner</name>
    <message>
        <source>Windows 临时文件</source>
        <translation>ملفات Windows المؤقتة</translation>
    </message>
    <message>
        <source>Windows Update 缓存</source>
        <translation>ذاكرة التخزين المؤقت لـ Windows Update</translation>
    </message>
    <message>
        <source>Google Chrome 缓存</source>
        <translation>ذاكرة التخزين المؤقت لـ Google Chrome</translation>
    </message>
    <message>
        <source>Microsoft Edge 缓存</source>
        <translation>ذاكرة التخزين المؤقت لـ Microsoft Edge</translation>
    </message>
    <message>
        <source>Mozilla Firefox 缓存</source>
        <translation>ذاكرة التخزين المؤقت لـ Mozilla Firefox</translation>
    </message>
    <message>
        <source>系统日志文件</source>
        <translation>ملفات سجلات النظام</translation>
    </message>
    <message>
        <source>Prefetch 预读缓存</source>
        <translation>ذاكرة Prefetch المؤقتة</translation>
    </message>
    <message>
        <source>缩略图缓存</source>
        <translation>ذاكرة التخزين المؤقت للصور المصغرة</translation>
    </message>
    <message>
        <source>崩溃转储文件</source>
        <translation>ملفات تفريغ الأعطال</translation>
    </message>
    <message>
        <source>回收站</source>
        <translation>سلة المحذوفات</translation>
    </message>
    <message>
        <source>Windows 旧系统备份</source>
        <translation>تثبيتات Windows السابقة</translation>
    </message>
</context>
<context>
    <name>DashboardPage</name>
    <message>
        <source>磁盘清理</source>
        <translation>تنظيف القرص</translation>
    </message>
    <message>
        <source>清理垃圾文件</source>
        <translation>تنظيف الملفات غير الضرورية</translation>
    </message>
    <message>
        <source>软件卸载</source>
        <translation>إلغاء تثبيت البرامج</translation>
    </message>
    <message>
        <source>管理已装软件</source>
        <translation>إدارة البرامج المثبتة</translation>
    </message>
    <message>
        <source>Windows App</source>
        <translation>تطبيقات Windows</translation>
    </message>
    <message>
        <source>管理UWP应用</source>
        <translation>إدارة تطبيقات UWP</translation>
    </message>
    <message>
        <source>浏览器扩展</source>
        <translation>ملحقات المستعرض</translation>
    </message>
    <message>
        <source>管理扩展插件</source>
        <translation>إدارة الملحقات</translation>
    </message>
    <message>
        <source>系统概览</source>
        <translation>نظرة عامة على النظام</translation>
    </message>
    <message>
        <source>● 实时</source>
        <translation>● مباشر</translation>
    </message>
    <message>
        <source>正在读取系统信息…</source>
        <translation>جارٍ قراءة معلومات النظام…</translation>
    </message>
    <message>
        <source>已安装更新</source>
        <translation>التحديثات المثبتة</translation>
    </message>
    <message>
        <source>实时性能</source>
        <translation>الأداء المباشر</translation>
    </message>
    <message>
        <source>内存</source>
        <translation>الذاكرة</translation>
    </message>
    <message>
        <source>磁盘</source>
        <translation>القرص</translation>
    </message>
    <message>
        <source>快速操作</source>
        <translation>إجراءات سريعة</translation>
    </message>
    <message>
        <source>%1 核</source>
        <translation>الأنوية: %1</translation>
    </message>
    <message>
        <source>已运行 %1 小时 %2 分钟</source>
        <translation>وقت التشغيل: %1 ساعة و%2 دقيقة</translation>
    </message>
    <message>
        <source>已运行 %1 天 %2 小时</source>
        <translation>وقت التشغيل: %1 يوم و%2 ساعة</translation>
    </message>
</context>
<context>
    <name>ForceRemoveDialog</name>
    <message>
        <source>Force Remove</source>
        <translation>الإزالة القسرية</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>إلغاء الأمر</translation>
    </message>
    <message>
        <source>🗑  Force Remove Selected</source>
        <translation>🗑  إزالة المحدد قسرياً</translation>
    </message>
    <message>
        <source>Forcefully removing: %1</source>
        <translation>جارٍ الإزالة القسرية: %1</translation>
    </message>
    <message>
        <source>Scanning for removal targets...</source>
        <translation>جارٍ البحث عن العناصر المراد إزالتها...</translation>
    </message>
    <message>
        <source>⚠  Review each item carefully. High-risk items are unchecked by default.</source>
        <translation>⚠  راجع كل عنصر بعناية. العناصر عالية الخطورة غير محددة افتراضياً.</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>تحديد الكل</translation>
    </message>
    <message>
        <source>Deselect All</source>
        <translation>إلغاء تحديد الكل</translation>
    </message>
    <message>
        <source>✅  Nothing found to remove.</source>
        <translation>✅  لم يتم العثور على شيء لإزالته.</translation>
    </message>
    <message>
        <source>Removing selected items...</source>
        <translation>جارٍ إزالة العناصر المحددة...</translation>
    </message>
    <message>
        <source>Force remove complete</source>
        <translation>اكتملت الإزالة القسرية</translation>
    </message>
    <message>
        <source>The application and its associated files have been removed.</source>
        <translation>تمت إزالة التطبيق والملفات المرتبطة به.</translation>
    </message>
    <message>
        <source>Install location %1 is a system or user folder: it is left alone.</source>
        <translation>موقع التثبيت %1 مجلد نظام أو مجلد مستخدم، لذا سيبقى كما هو.</translation>
    </message>
    <message>
        <source>Nothing found to remove</source>
        <translation>لم يتم العثور على شيء لإزالته</translation>
    </message>
    <message>
        <source>Found &lt;b&gt;%1&lt;/b&gt; items  ·  &lt;b&gt;%2&lt;/b&gt; reclaimable</source>
        <translation>العناصر التي تم العثور عليها: &lt;b&gt;%1&lt;/b&gt;  ·  يمكن استرداد &lt;b&gt;%2&lt;/b&gt;</translation>
    </message>
    <message>
        <source>Starting...</source>
        <translation>جارٍ البدء...</translation>
    </message>
    <message>
        <source>Force remove complete  ·  freed &lt;b&gt;%1&lt;/b&gt;</source>
        <translation>اكتملت الإزالة القسرية  ·  تم تحرير &lt;b&gt;%1&lt;/b&gt;</translation>
    </message>
    <message>
        <source>Done ✓</source>
        <translation>تم ✓</translation>
    </message>
</context>
<context>
    <name>ForceRemoveRowWidget</name>
    <message>
        <source>Install Dir</source>
        <translation>مجلد التثبيت</translation>
    </message>
    <message>
        <source>App Data</source>
        <translation>بيانات التطبيق</translation>
    </message>
    <message>
        <source>Registry</source>
        <translation>السجل</translation>
    </message>
    <message>
        <source>Startup</source>
        <translation>بدء التشغيل</translation>
    </message>
    <message>
        <source>Startup Lnk</source>
        <translation>اختصار بدء التشغيل</translation>
    </message>
    <message>
        <source>Scheduled Task</source>
        <translation>مهمة مجدولة</translation>
    </message>
    <message>
        <source>Service</source>
        <translation>خدمة</translation>
    </message>
    <message>
        <source>⚠ High Risk</source>
        <translation>⚠ خطورة عالية</translation>
    </message>
</context>
<context>
    <name>ForceRemoveScanner</name>
    <message>
        <source>Killing processes...</source>
        <translation>جارٍ إنهاء العمليات...</translation>
    </message>
    <message>
        <source>Scanning install directory...</source>
        <translation>جارٍ فحص مجلد التثبيت...</translation>
    </message>
    <message>
        <source>Scanning app data...</source>
        <translation>جارٍ فحص بيانات التطبيق...</translation>
    </message>
    <message>
        <source>Scanning registry...</source>
        <translation>جارٍ فحص السجل...</translation>
    </message>
    <message>
        <source>Scanning startup items...</source>
        <translation>جارٍ فحص عناصر بدء التشغيل...</translation>
    </message>
    <message>
        <source>Scanning scheduled tasks...</source>
        <translation>جارٍ فحص المهام المجدولة...</translation>
    </message>
    <message>
        <source>Scanning services...</source>
        <translation>جارٍ فحص الخدمات...</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>تم</translation>
    </message>
    <message>
        <source>Install folder: %1</source>
        <translation>مجلد التثبيت: %1</translation>
    </message>
    <message>
        <source>App data: .../%1/%2</source>
        <translation>بيانات التطبيق: ‎.../%1/%2</translation>
    </message>
    <message>
        <source>Registry uninstall entry: %1</source>
        <translation>إدخال إلغاء التثبيت في السجل: %1</translation>
    </message>
    <message>
        <source>Startup registry: %1 → %2</source>
        <translation>بدء التشغيل في السجل: %1 → %2</translation>
    </message>
    <message>
        <source>Startup shortcut: %1</source>
        <translation>اختصار بدء التشغيل: %1</translation>
    </message>
    <message>
        <source>Scheduled task: %1</source>
        <translation>مهمة مجدولة: %1</translation>
    </message>
    <message>
        <source>Windows service: %1 (%2)</source>
        <translation>خدمة Windows: %1 (%2)‎</translation>
    </message>
    <message>
        <source>Removing: %1</source>
        <translation>جارٍ الإزالة: %1</translation>
    </message>
    <message>
        <source>Done: %1</source>
        <translation>تم: %1</translation>
    </message>
</context>
<context>
    <name>LinkManager</name>
    <message>
        <source>无法加载页面链接。

请联系技术支持或重新安装软件。</source>
        <translation>تعذر تحميل روابط الصفحة.

يرجى الاتصال بالدعم الفني أو إعادة تثبيت البرنامج.</translation>
    </message>
    <message>
        <source>无法打开浏览器</source>
        <translation>تعذر فتح المستعرض</translation>
    </message>
    <message>
        <source>无法打开默认浏览器。

请手动复制链接访问：
%1</source>
        <translation>تعذر فتح المستعرض الافتراضي.

يرجى نسخ الارتباط وفتحه يدوياً:
%1</translation>
    </message>
    <message>
        <source>配置错误</source>
        <translation>خطأ في التكوين</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>About Norvale</source>
        <translation>حول Norvale</translation>
    </message>
    <message>
        <source>Language Changed</source>
        <translation>تم تغيير اللغة</translation>
    </message>
    <message>
        <source>Language changed to: %1
The application will restart now.</source>
        <translation>تم تغيير اللغة إلى: %1
ستتم إعادة تشغيل التطبيق الآن.</translation>
    </message>
    <message>
        <source>Restart Failed</source>
        <translation>تعذرت إعادة التشغيل</translation>
    </message>
    <message>
        <source>Please restart the application manually.</source>
        <translation>يرجى إعادة تشغيل التطبيق يدوياً.</translation>
    </message>
</context>
<context>
    <name>ResidueDialog</name>
    <message>
        <source>Clean Residues</source>
        <translation>تنظيف البقايا</translation>
    </message>
    <message>
        <source>🧹  Clean Residues</source>
        <translation>🧹  تنظيف البقايا</translation>
    </message>
    <message>
        <source>Scanning for residue files...</source>
        <translation>جارٍ البحث عن الملفات المتبقية...</translation>
    </message>
    <message>
        <source>Initializing...</source>
        <translation>جارٍ التهيئة...</translation>
    </message>
    <message>
        <source>✅  No residue files found!</source>
        <translation>✅  لم يتم العثور على ملفات متبقية!</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>تحديد الكل</translation>
    </message>
    <message>
        <source>Deselect All</source>
        <translation>إلغاء تحديد الكل</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>إلغاء الأمر</translation>
    </message>
    <message>
        <source>Scanning...</source>
        <translation>جارٍ الفحص...</translation>
    </message>
    <message>
        <source>Found &lt;b&gt;%1&lt;/b&gt; items  ·  &lt;b&gt;%2&lt;/b&gt; reclaimable</source>
        <translation>العناصر التي تم العثور عليها: &lt;b&gt;%1&lt;/b&gt;  ·  يمكن استرداد &lt;b&gt;%2&lt;/b&gt;</translation>
    </message>
    <message>
        <source>No residue files found</source>
        <translation>لم يتم العثور على ملفات متبقية</translation>
    </message>
    <message>
        <source>🗑  Clean Selected</source>
        <translation>🗑  تنظيف المحدد</translation>
    </message>
    <message>
        <source>Cleaning...</source>
        <translation>جارٍ التنظيف...</translation>
    </message>
    <message>
        <source>Cleaning... %1%</source>
        <translation>جارٍ التنظيف... %1%</translation>
    </message>
    <message>
        <source>✅  Cleaned — freed %1</source>
        <translation>✅  تم التنظيف — تم تحرير %1</translation>
    </message>
    <message>
        <source>Done ✓</source>
        <translation>تم ✓</translation>
    </message>
</context>
<context>
    <name>ResidueRowWidget</name>
    <message>
        <source>Safe</source>
        <translation>آمن</translation>
    </message>
    <message>
        <source>Confirm</source>
        <translation>يتطلب تأكيداً</translation>
    </message>
    <message>
        <source>Orphaned App Data</source>
        <translation>بيانات تطبيقات يتيمة</translation>
    </message>
    <message>
        <source>Cache Files</source>
        <translation>ملفات ذاكرة التخزين المؤقت</translation>
    </message>
    <message>
        <source>Log Files</source>
        <translation>ملفات السجلات</translation>
    </message>
    <message>
        <source>Crash Reports</source>
        <translation>تقارير الأعطال</translation>
    </message>
    <message>
        <source>Temp Files</source>
        <translation>الملفات المؤقتة</translation>
    </message>
</context>
<context>
    <name>Sidebar</name>
    <message>
        <source>功能</source>
        <translation>الوظائف</translation>
    </message>
    <message>
        <source>系统概览</source>
        <translation>نظرة عامة على النظام</translation>
    </message>
    <message>
        <source>磁盘清理</source>
        <translation>تنظيف القرص</translation>
    </message>
    <message>
        <source>软件卸载</source>
        <translation>إلغاء تثبيت البرامج</translation>
    </message>
    <message>
        <source>Windows App</source>
        <translation>تطبيقات Windows</translation>
    </message>
    <message>
        <source>浏览器扩展</source>
        <translation>ملحقات المستعرض</translation>
    </message>
</context>
<context>
    <name>TitleBar</name>
    <message>
        <source>菜单</source>
        <translation>القائمة</translation>
    </message>
    <message>
        <source>最小化</source>
        <translation>تصغير</translation>
    </message>
    <message>
        <source>最大化</source>
        <translation>تكبير</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>إغلاق</translation>
    </message>
    <message>
        <source>ℹ️  Qbout Norvale</source>
        <translation>ℹ️  حول Norvale</translation>
    </message>
    <message>
        <source>🌐  Language</source>
        <translation>🌐  اللغة</translation>
    </message>
    <message>
        <source>❓  Help</source>
        <translation>❓  التعليمات</translation>
    </message>
    <message>
        <source>💬  Support</source>
        <translation>💬  الدعم</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>خروج</translation>
    </message>
    <message>
        <source>还原</source>
        <translation>استعادة</translation>
    </message>
</context>
<context>
    <name>UninstallPage</name>
    <message>
        <source>Software Uninstall</source>
        <translation>إلغاء تثبيت البرامج</translation>
    </message>
    <message>
        <source>Manage installed programs · Batch uninstall · Clean registry residues</source>
        <translation>إدارة البرامج المثبتة · إلغاء التثبيت المجمّع · تنظيف بقايا السجل</translation>
    </message>
    <message>
        <source> apps</source>
        <translation> التطبيقات</translation>
    </message>
    <message>
        <source> unused</source>
        <translation> غير المستخدمة</translation>
    </message>
    <message>
        <source>Search installed software...</source>
        <translation>البحث في البرامج المثبتة...</translation>
    </message>
    <message>
        <source>All</source>
        <translation>الكل</translation>
    </message>
    <message>
        <source>Unused</source>
        <translation>غير المستخدمة</translation>
    </message>
    <message>
        <source>↺ Refresh</source>
        <translation>↺ تحديث</translation>
    </message>
    <message>
        <source>By Size</source>
        <translation>حسب الحجم</translation>
    </message>
    <message>
        <source>By Date</source>
        <translation>حسب التاريخ</translation>
    </message>
    <message>
        <source>By Name</source>
        <translation>حسب الاسم</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>الاسم</translation>
    </message>
    <message>
        <source>Publisher</source>
        <translation>الناشر</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>الحجم</translation>
    </message>
    <message>
        <source>Install Date</source>
        <translation>تاريخ التثبيت</translation>
    </message>
    <message>
        <source>Click Refresh to scan installed programs.</source>
        <translation>انقر فوق «تحديث» لفحص البرامج المثبتة.</translation>
    </message>
    <message>
        <source>Scanning installed programs...</source>
        <translation>جارٍ فحص البرامج المثبتة...</translation>
    </message>
    <message>
        <source>Reading registry entries, please wait...</source>
        <translation>جارٍ قراءة إدخالات السجل، يرجى الانتظار...</translation>
    </message>
    <message>
        <source>✦ Clean Residues</source>
        <translation>✦ تنظيف البقايا</translation>
    </message>
    <message>
        <source>Uninstall Selected</source>
        <translation>إلغاء تثبيت المحدد</translation>
    </message>
    <message>
        <source>Scanning...</source>
        <translation>جارٍ الفحص...</translation>
    </message>
    <message>
        <source>&lt;b&gt;%1&lt;/b&gt; programs</source>
        <translation>البرامج: &lt;b&gt;%1&lt;/b&gt;</translation>
    </message>
    <message>
        <source>Selected &lt;b&gt;%1&lt;/b&gt;  ·  Free up &lt;b&gt;%2&lt;/b&gt;</source>
        <translation>المحدد: &lt;b&gt;%1&lt;/b&gt;  ·  سيتم تحرير &lt;b&gt;%2&lt;/b&gt;</translation>
    </message>
    <message>
        <source>Confirm Uninstall</source>
        <translation>تأكيد إلغاء التثبيت</translation>
    </message>
    <message>
        <source>Uninstall &quot;%1&quot;?</source>
        <translation>هل تريد إلغاء تثبيت «%1»؟</translation>
    </message>
    <message>
        <source>No Uninstaller Found</source>
        <translation>لم يتم العثور على برنامج إلغاء التثبيت</translation>
    </message>
    <message>
        <source>&lt;b&gt;%1&lt;/b&gt; does not have a built-in uninstaller.</source>
        <translation>لا يتضمن &lt;b&gt;%1&lt;/b&gt; برنامجاً مضمّناً لإلغاء التثبيت.</translation>
    </message>
    <message>
        <source>Use &lt;b&gt;Force Remove&lt;/b&gt; to delete the installation folder, registry entries, and associated files.&lt;br&gt;&lt;br&gt;&lt;span style=&apos;color:#f59e0b; font-size:11px;&apos;&gt;⚠ This cannot be undone.&lt;/span&gt;</source>
        <translation>استخدم &lt;b&gt;الإزالة القسرية&lt;/b&gt; لحذف مجلد التثبيت وإدخالات السجل والملفات المرتبطة.&lt;br&gt;&lt;br&gt;&lt;span style=&apos;color:#f59e0b; font-size:11px;&apos;&gt;⚠ لا يمكن التراجع عن هذا الإجراء.&lt;/span&gt;</translation>
    </message>
    <message>
        <source>Force Remove…</source>
        <translation>إزالة قسرية…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>إلغاء الأمر</translation>
    </message>
    <message>
        <source>Uninstalling: %1…</source>
        <translation>جارٍ إلغاء التثبيت: %1…</translation>
    </message>
    <message>
        <source>✓ Uninstalled: &lt;b&gt;%1&lt;/b&gt;  &lt;a href=&apos;clean&apos; style=&apos;color:#2563eb;text-decoration:none;font-weight:600;&apos;&gt;Clean residues →&lt;/a&gt;</source>
        <translation>✓ تم إلغاء التثبيت: &lt;b&gt;%1&lt;/b&gt;  &lt;a href=&apos;clean&apos; style=&apos;color:#2563eb;text-decoration:none;font-weight:600;&apos;&gt;تنظيف البقايا ←&lt;/a&gt;</translation>
    </message>
    <message>
        <source>✗ Failed to uninstall: &lt;b&gt;%1&lt;/b&gt;</source>
        <translation>✗ تعذر إلغاء التثبيت: &lt;b&gt;%1&lt;/b&gt;</translation>
    </message>
    <message>
        <source>Uninstall Failed</source>
        <translation>فشل إلغاء التثبيت</translation>
    </message>
    <message>
        <source>&lt;b&gt;%1&lt;/b&gt; could not be uninstalled using its built-in uninstaller.</source>
        <translation>تعذر إلغاء تثبيت &lt;b&gt;%1&lt;/b&gt; باستخدام برنامج إلغاء التثبيت المضمّن فيه.</translation>
    </message>
    <message>
        <source>&lt;b&gt;Force Remove&lt;/b&gt; will:&lt;br&gt;• Kill all running processes&lt;br&gt;• Delete the installation folder&lt;br&gt;• Remove registry entries&lt;br&gt;• Clean startup items &amp;amp; services&lt;br&gt;&lt;br&gt;&lt;span style=&apos;color:#f59e0b; font-size:11px;&apos;&gt;⚠ This cannot be undone. Review items carefully before confirming.&lt;/span&gt;</source>
        <translation>ستقوم &lt;b&gt;الإزالة القسرية&lt;/b&gt; بما يلي:&lt;br&gt;• إنهاء كل العمليات قيد التشغيل&lt;br&gt;• حذف مجلد التثبيت&lt;br&gt;• إزالة إدخالات السجل&lt;br&gt;• تنظيف عناصر بدء التشغيل &amp;amp; الخدمات&lt;br&gt;&lt;br&gt;&lt;span style=&apos;color:#f59e0b; font-size:11px;&apos;&gt;⚠ لا يمكن التراجع عن هذا الإجراء. راجع العناصر بعناية قبل التأكيد.&lt;/span&gt;</translation>
    </message>
    <message>
        <source>Not Found</source>
        <translation>لم يتم العثور عليه</translation>
    </message>
    <message>
        <source>Could not find installation info for &lt;b&gt;%1&lt;/b&gt;.&lt;br&gt;Please remove it manually.</source>
        <translation>تعذر العثور على معلومات التثبيت لـ &lt;b&gt;%1&lt;/b&gt;.&lt;br&gt;يرجى إزالته يدوياً.</translation>
    </message>
    <message>
        <source>Batch Uninstall</source>
        <translation>إلغاء تثبيت مجمّع</translation>
    </message>
    <message>
        <source>Uninstall %1 selected apps?
This cannot be undone.</source>
        <translation>هل تريد إلغاء تثبيت التطبيقات المحددة (%1)؟
لا يمكن التراجع عن هذا الإجراء.</translation>
    </message>
</context>
<context>
    <name>UninstallRowWidget</name>
    <message>
        <source>Remove</source>
        <translation>إزالة</translation>
    </message>
</context>
<context>
    <name>WinAppRow</name>
    <message>
        <source>移除</source>
        <translation>إزالة</translation>
    </message>
</context>
<context>
    <name>WinAppsPage</name>
    <message>
        <source>移除失败（可能需要管理员权限）</source>
        <translation>فشلت الإزالة (قد تلزم امتيازات المسؤول)</translation>
    </message>
    <message>
        <source>系统保护应用，已移除当前用户注册，但系统级组件可能在重启后自动恢复。
若需彻底删除，请以管理员身份运行本程序。</source>
        <translation>هذا تطبيق محمي من النظام: أُزيل تسجيله للمستخدم الحالي، لكن قد تُستعاد مكونات النظام تلقائياً بعد إعادة التشغيل.
لإزالته بالكامل، شغّل هذا البرنامج كمسؤول.</translation>
    </message>
    <message>
        <source>Windows 应用</source>
        <translation>تطبيقات Windows</translation>
    </message>
    <message>
        <source>搜索应用...</source>
        <translation>البحث في التطبيقات...</translation>
    </message>
    <message>
        <source>↻ 刷新</source>
        <translation>↻ تحديث</translation>
    </message>
    <message>
        <source>名称</source>
        <translation>الاسم</translation>
    </message>
    <message>
        <source>发行者</source>
        <translation>الناشر</translation>
    </message>
    <message>
        <source>版本</source>
        <translation>الإصدار</translation>
    </message>
    <message>
        <source>安装日期</source>
        <translation>تاريخ التثبيت</translation>
    </message>
    <message>
        <source>大小</source>
        <translation>الحجم</translation>
    </message>
    <message>
        <source>正在移除应用...</source>
        <translation>جارٍ إزالة التطبيق...</translation>
    </message>
    <message>
        <source>请稍候...</source>
        <translation>يرجى الانتظار...</translation>
    </message>
    <message>
        <source>正在扫描...</source>
        <translation>جارٍ الفحص...</translation>
    </message>
    <message>
        <source>正在扫描 Windows 应用...</source>
        <translation>جارٍ فحص تطبيقات Windows...</translation>
    </message>
    <message>
        <source>正在扫描 Windows 应用... 已找到 %1 个</source>
        <translation>جارٍ فحص تطبيقات Windows... تم العثور على %1</translation>
    </message>
    <message>
        <source>显示 %1 / %2 个应用</source>
        <translation>التطبيقات المعروضة: %1 / %2</translation>
    </message>
    <message>
        <source>共 %1 个应用</source>
        <translation>إجمالي التطبيقات: %1</translation>
    </message>
    <message>
        <source>🗑  移除所选</source>
        <translation>🗑  إزالة المحدد</translation>
    </message>
    <message>
        <source>🗑  移除所选 (%1)</source>
        <translation>🗑  إزالة المحدد (%1)</translation>
    </message>
    <message>
        <source>已选择 %1 个应用</source>
        <translation>التطبيقات المحددة: %1</translation>
    </message>
    <message>
        <source>无法卸载 Microsoft Edge</source>
        <translation>تعذر إلغاء تثبيت Microsoft Edge</translation>
    </message>
    <message>
        <source>Microsoft Edge 是 Windows 系统组件，无法通过此方式卸载。

如需更换默认浏览器，请前往
「设置 → 应用 → 默认应用」进行设置。</source>
        <translation>يُعد Microsoft Edge أحد مكونات نظام Windows، ولا يمكن إلغاء تثبيته بهذه الطريقة.

لتغيير المستعرض الافتراضي، انتقل إلى
«الإعدادات ← التطبيقات ← التطبيقات الافتراضية».</translation>
    </message>
    <message>
        <source>移除应用</source>
        <translation>إزالة التطبيق</translation>
    </message>
    <message>
        <source>确定要移除 &quot;%1&quot;？</source>
        <translation>هل تريد بالتأكيد إزالة «%1»؟</translation>
    </message>
    <message>
        <source>批量移除</source>
        <translation>إزالة مجمّعة</translation>
    </message>
    <message>
        <source>确定移除选中的 %1 个应用？
此操作不可撤销。</source>
        <translation>هل تريد بالتأكيد إزالة التطبيقات المحددة (%1)؟
لا يمكن التراجع عن هذا الإجراء.</translation>
    </message>
    <message>
        <source>正在移除 %1 个应用...</source>
        <translation>جارٍ إزالة التطبيقات (%1)...</translation>
    </message>
    <message>
        <source>%1 / %2 个应用</source>
        <translation>التطبيقات: %1 / %2</translation>
    </message>
    <message>
        <source>正在移除「%1」...（%2/%3）</source>
        <translation>جارٍ إزالة «%1»... (%2/%3)</translation>
    </message>
    <message>
        <source>• %1：%2</source>
        <translation>• %1: %2</translation>
    </message>
    <message>
        <source>✓ 已移除 %1 个应用，正在刷新...</source>
        <translation>✓ تمت إزالة التطبيقات (%1)، جارٍ التحديث...</translation>
    </message>
    <message>
        <source>移除失败</source>
        <translation>فشلت الإزالة</translation>
    </message>
    <message>
        <source>所有应用移除失败。</source>
        <translation>فشلت إزالة كل التطبيقات.</translation>
    </message>
    <message>
        <source>部分移除失败</source>
        <translation>فشلت إزالة بعض العناصر</translation>
    </message>
    <message>
        <source>成功 &lt;b&gt;%1&lt;/b&gt; 个，失败 &lt;b&gt;%2&lt;/b&gt; 个。</source>
        <translation>نجح: &lt;b&gt;%1&lt;/b&gt;، فشل: &lt;b&gt;%2&lt;/b&gt;.</translation>
    </message>
    <message>
        <source>失败详情：&lt;br&gt;%1&lt;br&gt;&lt;br&gt;系统预装应用（如 Edge、Photos）可能受保护，无法通过此方式移除。</source>
        <translation>تفاصيل الفشل:&lt;br&gt;%1&lt;br&gt;&lt;br&gt;قد تكون تطبيقات النظام المثبتة مسبقاً (مثل Edge والصور) محمية، ولا يمكن إزالتها بهذه الطريقة.</translation>
    </message>
</context>
<context>
    <name>QGuiApplication</name>
    <message>
        <source>QT_LAYOUT_DIRECTION</source>
        <comment>Translate this string to the string &apos;LTR&apos; in left-to-right languages or to &apos;RTL&apos; in right-to-left languages (such as Hebrew and Arabic) to get proper widget layout.</comment>
        <translation>RTL</translation>
    </message>
</context>
</TS>
